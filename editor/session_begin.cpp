#include <cmath>

#include "editor/smart_edit.h"
#include "host/document.h"
#include "mtext/entity/decode_entity.h"
#include "mtext/entity/dtext_size_finder.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_layout.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/escape.h"
#include "od/db/OdDbDatabase.h"

namespace {

constexpr double kNoHeight = 1e-10;
/// What a text is opened with whose height is none.
constexpr double kLeastHeight = 0.2;

double usable(double height) { return std::abs(height) <= kNoHeight ? kLeastHeight : height; }

int attachment_number(int attachment) { return attachment > 9 ? 0 : attachment - 1; }

text_background background_of(const OdDbMText& source) {
  return {.on = source.backgroundFill(),
          .color = source.getBackgroundFillColor(),
          .use_drawing_background = source.isBackgroundColorUsed(),
          .scale = source.getBackgroundScaleFactor()};
}

/// Distance from the insertion point of a single-line text up to the top of its letters.
double rise_over(OdDb::TextVertMode mode, const mtext::font_metrics& font) {
  switch (mode) {
    case OdDb::kTextBottom:
      return font.above + font.below;
    case OdDb::kTextVertMid:
      return font.above / 2;
    case OdDb::kTextTop:
      return 0;
    default:
      return font.above;
  }
}

std::uint32_t alignment_of(OdDb::TextHorzMode mode) {
  if (mode == OdDb::kTextCenter || mode == OdDb::kTextMid) return 2;
  return mode == OdDb::kTextRight ? 3 : 1;
}

/// The frame of one line that never wraps, placed so that its letters stand where the entity has them.
text_frame frame_of(const OdDbText& source, const mtext::font_metrics& font) {
  const bool middle = source.horizontalMode() == OdDb::kTextMid;
  const bool aligned =
      source.horizontalMode() == OdDb::kTextAlign || source.horizontalMode() == OdDb::kTextFit;
  const bool at_start = source.isDefaultAlignment() || aligned;
  text_frame frame;
  frame.normal = source.normal().normal();
  frame.direction = OdGePlane({}, frame.normal).uAxis().rotatedBy(source.rotation(), frame.normal);
  const OdGePoint3d at = at_start ? source.position() : source.alignmentPoint();
  frame.location = at + frame.up() * rise_over(middle ? OdDb::kTextVertMid : source.verticalMode(), font);
  return frame;
}

}  // namespace

void smart_edit::hide(OdDbEntity& source) {
  source.setVisibility(OdDb::kInvisible, true);
  if (source.isDBRO()) hostEntUpd(source.objectId());
  m_editable->setDatabaseDefaults(&m_host.database());
  m_editable->setLayer(source.layer());
  m_editable->setColor(source.color());
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
  m_editable->setTextHeight(usable(source->textHeight()), /*keep_runs=*/true);
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

bool smart_edit::beginTextEdit(OdDbTextPtr source, const session_start& start) {
  m_source_line = source;
  hide(*source);
  const auto vertical = mtext::vertical_attachment(source->horizontalMode(), source->verticalMode());
  m_editable->setFinder(std::make_shared<mtext::dtext_size_finder>(OdDbDatabasePtr(&m_host.database()),
                                                                   source->verticalMode(), vertical));
  mtext::convert_info info;
  info.extents_mode = 1;
  info.alignment = alignment_of(source->horizontalMode());
  m_editable->setLayoutInfo(info);
  if (source->textStyle()) m_editable->setStyle(source->textStyle(), /*keep_runs=*/true);
  m_editable->setTextHeight(usable(source->height()), /*keep_runs=*/true);
  auto format = m_editable->defaultFormat();
  format.width_factor = source->widthFactor();
  format.oblique = source->oblique();
  m_editable->setDefaultFormat(format);
  m_editable->setFrame(frame_of(*source, m_editable->finder().font_metrics(format)));
  m_editable->setAttachment(static_cast<int>(info.alignment) - 1);
  m_editable->setContents(mtext::escape_mtext(source->textString().c_str(), /*keep_line_feeds=*/false));
  m_editable->load();
  beginPlain(/*single_line=*/true, !source->textString().isEmpty());
  startEditing(start);
  m_editable->selectRange(0, -1, /*snap=*/false, /*keep=*/false);
  m_editable->endOfEdit(/*relayout=*/false);
  return true;
}

void smart_edit::beginPlain(bool single_line, bool had_text) {
  m_single_line = single_line;
  m_had_text = had_text;
  if (single_line) m_line_frame.open(*m_editable);
}
