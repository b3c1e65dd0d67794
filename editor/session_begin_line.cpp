#include <algorithm>
#include <cmath>

#include "editor/smart_edit.h"
#include "editor/usable_height.h"
#include "host/document.h"
#include "mtext/entity/decode_entity.h"
#include "mtext/entity/dtext_size_finder.h"
#include "mtext/line_state.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/text_placement.h"
#include "od/fonts/OdFont.h"

namespace {

namespace alignment = mtext::alignment;

/// How the line grows while it is typed: away from the point that it hangs on. A backward text grows
/// backwards.
std::uint32_t alignment_of(const OdDbText& source) {
  const OdDb::TextHorzMode mode = source.horizontalMode();
  if (mode == OdDb::kTextCenter || mode == OdDb::kTextMid) return alignment::centre;
  const bool to_the_left = (mode == OdDb::kTextRight) != source.isMirroredInX();
  return to_the_left ? alignment::right : alignment::left;
}

/// Where along the baseline, seen from the start of the drawn text, a line of this alignment hangs.
double hanging_point(std::uint32_t aligned, const OdDbTextPlacement& drawn) {
  if (aligned == alignment::centre) return (drawn.spanStart + drawn.spanEnd) / 2;
  return aligned == alignment::right ? std::max(0.0, drawn.spanEnd) : std::min(0.0, drawn.spanEnd);
}

/// What the finder takes off the start of slanted letters in a shape font, which the drawn start does
/// without.
double lean(const OdDbText& source, std::uint32_t aligned, const OdDbTextPlacement& drawn) {
  if (aligned == alignment::left || !drawn.style.font()->isShapeFont()) return 0;
  const OdDb::TextVertMode mode = source.verticalMode();
  const double halves = mode == OdDb::kTextVertMid ? 1 : mode == OdDb::kTextTop ? 2 : 0;
  return std::tan(source.oblique()) * halves * 0.5 * drawn.style.textSize();
}

/// From the baseline of the drawn text up to the top of the line that stands over it. An upside-down text
/// hangs below its baseline, and a middle one without letters yet has its point in the middle of those to
/// come.
double rise_over(const OdDbText& source, const OdDbTextPlacement& drawn, double above) {
  if (source.isMirroredInY()) return 0;
  const bool awaits_letters = source.horizontalMode() == OdDb::kTextMid && drawn.spanEnd == 0;
  return awaits_letters ? above / 2 : above;
}

/// The frame of lines that never wrap, placed so that the first one stands where the entity is drawn; a
/// mirrored text can be read there.
text_frame frame_of(const OdDbText& source, const OdDbTextPlacement& drawn, double above) {
  const std::uint32_t aligned = alignment_of(source);
  text_frame frame;
  frame.normal = source.normal().normal();
  frame.direction = OdGePlane({}, frame.normal).uAxis().rotatedBy(drawn.rotation, frame.normal);
  frame.location = OdGeMatrix3d::planeToWorld(frame.normal) * drawn.position +
                   frame.direction * (hanging_point(aligned, drawn) + lean(source, aligned, drawn)) +
                   frame.up() * rise_over(source, drawn, above);
  return frame;
}

}  // namespace

bool smart_edit::beginTextEdit(OdDbTextPtr source, const session_start& start) {
  m_source_line = source;
  hide(*source);
  const auto vertical = mtext::vertical_attachment(source->horizontalMode(), source->verticalMode());
  m_editable->setFinder(std::make_shared<mtext::dtext_size_finder>(OdDbDatabasePtr(&m_host.database()),
                                                                   source->verticalMode(), vertical));
  mtext::convert_info info;
  info.extents_mode = mtext::extents::ink_of_shape_fonts;
  info.alignment = alignment_of(*source);
  m_editable->setLayoutInfo(info);
  if (source->textStyle()) m_editable->setStyle(source->textStyle(), /*keep_runs=*/true);
  const OdDbTextPlacement drawn = odPlaceText(*source, source->textString(), m_host.database());
  m_editable->setTextHeight(editing::usable_height(drawn.style.textSize()), /*keep_runs=*/true);
  auto format = m_editable->defaultFormat();
  format.width_factor = drawn.style.xScale();
  format.oblique = source->oblique();
  m_editable->setDefaultFormat(format);
  m_editable->setFrame(frame_of(*source, drawn, m_editable->finder().font_metrics(format).above));
  m_editable->setAttachment(static_cast<int>(info.alignment) - 1);
  const auto contents = mtext::contents_of(source);
  m_editable->setContents(contents.text, contents.fields);
  m_editable->load();
  beginPlain(/*single_line=*/true, !source->textString().isEmpty());
  startEditing(start);
  m_editable->selectRange(0, -1, /*snap=*/false, /*keep=*/false);
  m_editable->endOfEdit(/*relayout=*/false);
  return true;
}
