#include "ui/toolbar/CMTextEdit.h"

#include "editor/smart_edit.h"
#include "host/application.h"
#include "host/exports.h"
#include "host/profile.h"
#include "host/window.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "ui/controls/size_list.h"
#include "ui/toolbar/control_table.h"
#include "ui/toolbar/toolbar_profile.h"
#include "ui/toolbar/toolbar_window.h"

namespace {

/// The colour of a text's layer, or of the layer that the drawing draws on.
color_code layer_color(const ExMTextEditable& text) {
  OdDbObjectId layer = text.layerId();
  if (layer.isNull() && text.database()) layer = text.database()->getCLAYER();
  const auto record = layer ? odCast<OdDbLayerTableRecord>(layer.openObject()) : OdDbLayerTableRecordPtr();
  return record ? controls::code_of(record->color()) : controls::kByBlockCode;
}

}  // namespace

CMTextEdit::CMTextEdit(smart_edit& session, ToolbarWindow& window, std::vector<fonts::font_row> font_rows)
    : m_session(session), m_window(window) {
  for (const toolbar_control& control : toolbar::control_table())
    if (toolbar::is_button(control)) m_looks[control.id] = {};
  m_window.moveTo(toolbar::place_in_profile());
  m_sizes.setSizes(controls::size_list());
  fillFonts(std::move(font_rows));
  fillStyles();
  m_colors.setLayerColor(layer_color(editable()));
  connectBoxes();
  editable().addWatcher(*this);
  m_session.setToolbar([this](unsigned, unsigned undo_change) {
    if (undo_change == kTextRestored)
      refresh();
    else
      showUndo();
  });
  refresh();
}

CMTextEdit::~CMTextEdit() {
  m_session.setToolbar({});
  editable().removeWatcher(*this);
  controls::size_list() = m_sizes.sizes();
  try {
    toolbar::keep_place(m_window.place());
  } catch (const std::exception&) {
    // A profile that cannot be written is no reason to lose the text that is about to be.
  }
}

bool CMTextEdit::isCompact() const { return m_session.isCompact(); }

ExMTextEditable& CMTextEdit::editable() { return m_session.editable(); }

HostWindow* CMTextEdit::window() { return m_session.window(); }

void CMTextEdit::fillFonts(std::vector<fonts::font_row> rows) {
  std::vector<FontBox::Row> filled;
  for (fonts::font_row& each : rows) filled.push_back({each.name, std::move(each)});
  m_fonts.setRows(std::move(filled));
}

void CMTextEdit::fillStyles() {
  std::vector<StyleBox::Row> rows;
  const OdDbDatabase* database = editable().database();
  const auto table =
      database ? odCast<OdDbSymbolTable>(database->getTextStyleTableId().openObject()) : OdDbSymbolTablePtr();
  if (table)
    for (const OdDbObjectId& id : table->records()) {
      const auto style = odCast<OdDbTextStyleTableRecord>(id.openObject());
      if (style && !style->isShapeFile()) rows.push_back({style->getName(), id});
    }
  m_styles.setRows(std::move(rows));
}

void CMTextEdit::connectBoxes() {
  m_sizes.confirmed = [this](float size) { return applySize(size); };
  m_fonts.changed = [this](const FontBox::Row& row) { return applyFont(row); };
  m_styles.changed = [this](const StyleBox::Row& row) { return applyStyle(row); };
  m_colors.changed = [this](const OdCmEntityColor& color) { return applyColor(color); };
  m_colors.pick = [this](const OdCmEntityColor& start) { return m_window.pickColor(start); };
  m_oblique.changed = [this](double degrees) { return applyOblique(degrees); };
  m_width.changed = [this](double factor) { return applyWidth(factor); };
}

HostPixel CMTextEdit::menuPlace(int id) {
  const HostPixel at = m_window.popupPlace(id);
  return window() ? window()->fromScreen(at) : at;
}

int CMTextEdit::choose(const HostMenu& menu, int id) {
  return window() ? window()->popupMenu(menu, menuPlace(id)) : 0;
}
