#include "editor/current_space.h"
#include "editor/smart_edit.h"
#include "editor/text_justify.h"
#include "host/document.h"
#include "od/db/OdDbBlockTableRecord.h"
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

}  // namespace

void smart_edit::writeLines(const OdDbText& source, std::size_t count) {
  const OdDbObjectId id = editing::current_space(m_host.database());
  const auto space = odCastOrThrow<OdDbBlockTableRecord>(id.openObject(OdDb::kForWrite));
  for (std::size_t at = 0; at < count; ++at) {
    const std::u16string letters = m_editable->lineText(at);
    if (letters.empty()) continue;
    const OdDbTextPtr line = new_line(source, *m_editable);
    line->setTextString(letters);
    line->setPosition(m_editable->linePosition(at));
    m_written_lines.push_back(space->appendOdDbEntity(line.get()));
    ApplyTextJustify(line, source.horizontalMode(), source.verticalMode());
    hostEntUpd(m_written_lines.back());
  }
}
