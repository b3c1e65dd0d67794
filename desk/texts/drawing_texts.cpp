#include "desk/texts/drawing_texts.h"

#include "mtext/escape.h"
#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbAttributeDefinition.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbText.h"
#include "od/gi/OdGiTextCharacter.h"

namespace {

std::u16string withoutReturns(std::u16string text) {
  std::erase(text, u'\r');
  return text;
}

TextKind kindOf(const OdDbText& text) {
  if (dynamic_cast<const OdDbAttributeDefinition*>(&text)) return TextKind::definition;
  if (dynamic_cast<const OdDbAttribute*>(&text)) return TextKind::attribute;
  return TextKind::text;
}

/// Collects the texts of one block.
class BlockTexts {
 public:
  BlockTexts(const OdDbBlockTableRecord& block, std::vector<DrawingText>& texts)
      : m_id(block.objectId()), m_name(block.getName().str()), m_texts(texts) {}

  void add(const OdDbObjectId& id) {
    const auto entity = odCast<OdDbEntity>(id.openObject());
    if (!entity) return;
    if (const auto mtext = odCast<OdDbMText>(entity))
      add(*mtext, TextKind::mtext, mtext->contents(),
          withoutReturns(mtext::unformat_mtext(mtext->contents().c_str())));
    if (const auto text = odCast<OdDbText>(entity))
      add(*text, kindOf(*text), text->textString(), odShownCharacters(text->textString().str()));
    if (const auto insert = odCast<OdDbBlockReference>(entity))
      for (const OdDbObjectId& attribute : insert->attributes()) add(attribute);
  }

 private:
  template <typename Text>
  void add(const Text& entity, TextKind kind, const OdString& contents, std::u16string plain) {
    m_texts.push_back({.id = entity.objectId(),
                       .block_id = m_id,
                       .kind = kind,
                       .layer = entity.layer().str(),
                       .style = entity.textStyleName().str(),
                       .block = m_name,
                       .contents = contents.str(),
                       .plain = std::move(plain)});
  }

  OdDbObjectId m_id;
  std::u16string m_name;
  std::vector<DrawingText>& m_texts;
};

}  // namespace

const char* nameOf(TextKind kind) {
  switch (kind) {
    case TextKind::mtext:
      return "MTEXT";
    case TextKind::text:
      return "TEXT";
    case TextKind::definition:
      return "ATTDEF";
    case TextKind::attribute:
      return "ATTRIB";
  }
  return "";
}

std::string handleOf(const DrawingText& text) { return text.id.handle().ascii().toUtf8(); }

std::vector<DrawingText> textsOf(const OdDbDatabase& database) {
  std::vector<DrawingText> texts;
  const auto blocks = odCast<OdDbSymbolTable>(database.getBlockTableId().openObject());
  if (!blocks) return texts;
  for (const OdDbObjectId& id : blocks->records()) {
    const auto block = odCast<OdDbBlockTableRecord>(id.openObject());
    if (!block) continue;
    BlockTexts collected(*block, texts);
    for (const OdDbObjectId& entity : block->entities()) collected.add(entity);
  }
  return texts;
}
