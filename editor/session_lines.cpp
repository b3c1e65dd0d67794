#include "editor/current_space.h"
#include "editor/smart_edit.h"
#include "host/document.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"

namespace {

void take_style(OdDbText& line, OdDbObjectId id) {
  const auto style = odCast<OdDbTextStyleTableRecord>(id ? id.openObject() : OdDbObjectPtr());
  if (!style) return;
  line.setTextStyle(id);
  line.setOblique(style->obliquingAngle());
  line.setWidthFactor(style->xScale());
}

/// From one baseline to the next, in text heights.
constexpr double kPitch = 5.0 / 3;

/// An entity with all that the lines of `text` have in common.
OdDbTextPtr new_line(const OdDbText& source, const ExMTextEditable& text) {
  auto line = odNew<OdDbText>();
  line->setDatabaseDefaults(text.database());
  take_style(*line, text.styleId());
  line->setHeight(text.textHeight());
  line->setNormal(text.normal());
  line->setRotation(source.rotation());
  return line;
}

/// Justifies line number `at` as `source`, on points as far below the source's as the line lies. The letters
/// that a line has alone decide where it begins then, not those of the whole text.
void place(OdDbText& line, const OdDbText& source, std::size_t at, const OdGeVector3d& up) {
  const OdGeVector3d down = up * (-kPitch * line.height() * static_cast<double>(at));
  // Two points make one line of this height; those below it have the height that was asked for.
  const bool is_below_aligned = at > 0 && source.horizontalMode() == OdDb::kTextAlign;
  line.setHorizontalMode(is_below_aligned ? OdDb::kTextLeft : source.horizontalMode());
  line.setVerticalMode(source.verticalMode());
  line.setPosition(source.position() + down);
  if (line.isDefaultAlignment()) return;
  line.setAlignmentPoint(source.alignmentPoint() + down);
  line.adjustAlignment();
}

}  // namespace

void smart_edit::writeLines(const OdDbText& source, std::size_t count) {
  const auto space = editing::open_current_space(m_host.database());
  for (std::size_t at = 0; at < count; ++at) {
    const std::u16string letters = m_editable->lineText(at);
    if (letters.empty()) continue;
    const OdDbTextPtr line = new_line(source, *m_editable);
    const OdDbFieldPtr field = m_editable->lineField(at, /*present=*/nullptr);
    line->setTextString(field ? field->getFieldCode(OdDbField::kEvaluatedText) : OdString(letters));
    place(*line, source, at, m_editable->frame().up());
    m_written_lines.push_back(space->appendOdDbEntity(line.get()));
    if (field) line->setField(OdDbField::kTextKey, *field);
    hostEntUpd(m_written_lines.back());
  }
}
