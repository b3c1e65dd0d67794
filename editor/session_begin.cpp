#include "editor/smart_edit.h"
#include "editor/usable_height.h"
#include "host/document.h"
#include "mtext/entity/decode_entity.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_layout.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbDatabase.h"

namespace {

int attachment_number(int attachment) { return attachment > 9 ? 0 : attachment - 1; }

text_background background_of(const OdDbMText& source) {
  return {.on = source.backgroundFill(),
          .color = source.getBackgroundFillColor(),
          .use_drawing_background = source.isBackgroundColorUsed(),
          .scale = source.getBackgroundScaleFactor()};
}

}  // namespace

void smart_edit::hide(OdDbEntity& source) {
  source.setVisibility(OdDb::kInvisible, true);
  updateDisplay(source);
  m_editable->setDatabaseDefaults(&m_host.database());
  m_editable->setLayer(source.layer());
  m_editable->setColor(source.color());
}

void smart_edit::updateDisplay(const OdDbEntity& source) {
  if (!source.isDBRO()) return;
  hostEntUpd(source.objectId());
  // A text of an insert is shown in the picture of the insert.
  if (dynamic_cast<const OdDbAttribute*>(&source)) hostEntUpd(source.ownerId());
}

void smart_edit::takeOrigin() {
  m_origin = {m_editable->contentsText(), m_editable->evaluatedContentsText(), m_editable->text().info,
              m_editable->frame(), m_editable->styleId()};
}

void smart_edit::startEditing(const session_start& start) {
  m_is_new = start.is_new;
  m_compact = start.compact;
  if (m_blink) m_blink->start();
  const auto at = start.caret_at ? textPoint(*start.caret_at) : std::nullopt;
  if (at) m_editable->selectBetween(*at, *at, /*keep=*/false);
  m_editable->endOfEdit(/*relayout=*/true);
  // Behind the first count of the lists: a text of which nobody changed anything keeps its own numbers.
  takeOrigin();
  placeInView();
  repaint(redraw_request::kGadgets | redraw_request::kText);
}

bool smart_edit::beginMTextEdit(OdDbMTextPtr source, const session_start& start) {
  m_source_text = source;
  hide(*source);
  m_editable->setFinder(std::make_shared<mtext::mtext_size_finder>(OdDbDatabasePtr(&m_host.database())));
  m_editable->setLayoutInfo(mtext::drawn_convert_info(source));
  m_editable->setDefaultFormat(mtext::drawn_mtext_format(source));
  if (source->textStyle()) m_editable->setStyle(source->textStyle(), /*keep_runs=*/true);
  m_editable->setTextHeight(editing::usable_height(source->textHeight()), /*keep_runs=*/true);
  m_editable->background = background_of(*source);
  const auto contents = mtext::contents_of(source);
  m_editable->setContents(contents.text, contents.fields);
  m_editable->load();
  const OdGeVector2d box = mtext::column_box(m_editable->text());
  m_editable->setFrame({.location = source->location(),
                        .normal = source->normal(),
                        .direction = source->direction(),
                        .width = box.x,
                        .height = box.y,
                        .attachment = attachment_number(source->attachment())});
  openGadgets();
  startEditing(start);
  return true;
}

void smart_edit::beginPlain(bool single_line, bool had_text) {
  m_single_line = single_line;
  m_had_text = had_text;
  if (single_line) m_line_frame.open(*m_editable);
}
