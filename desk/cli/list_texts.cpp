#include "desk/cli/list_texts.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "desk/cli/exit_code.h"
#include "desk/document/drawing_file.h"
#include "mtext/escape.h"
#include "od/base/unicode.h"
#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbAttributeDefinition.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbText.h"
#include "od/gi/OdGiTextCharacter.h"

namespace {

std::u16string withoutReturns(std::u16string text) {
  std::erase(text, u'\r');
  return text;
}

std::u16string kindOf(const OdDbText& text) {
  if (dynamic_cast<const OdDbAttributeDefinition*>(&text)) return u"ATTDEF";
  if (dynamic_cast<const OdDbAttribute*>(&text)) return u"ATTRIB";
  return u"TEXT";
}

/// Collects the texts of one block.
class BlockTexts {
 public:
  BlockTexts(std::u16string block, std::vector<ListedText>& texts)
      : m_block(std::move(block)), m_texts(texts) {}

  void add(const OdDbObjectId& id) {
    const auto entity = odCast<OdDbEntity>(id.openObject());
    if (!entity) return;
    if (const auto mtext = odCast<OdDbMText>(entity))
      add(*entity, u"MTEXT", withoutReturns(mtext::unformat_mtext(mtext->contents().c_str())));
    if (const auto text = odCast<OdDbText>(entity))
      add(*entity, kindOf(*text), odShownCharacters(text->textString().str()));
    if (const auto insert = odCast<OdDbBlockReference>(entity))
      for (const OdDbObjectId& attribute : insert->attributes()) add(attribute);
  }

 private:
  void add(const OdDbEntity& entity, std::u16string kind, std::u16string text) {
    m_texts.push_back({.handle = entity.handle().ascii().toUtf8(),
                       .kind = std::move(kind),
                       .layer = entity.layer().str(),
                       .block = m_block,
                       .text = std::move(text)});
  }

  std::u16string m_block;
  std::vector<ListedText>& m_texts;
};

void printJson(const std::vector<ListedText>& texts) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const ListedText& text : texts)
    list.push_back({{"handle", text.handle},
                    {"kind", odToUtf8(text.kind)},
                    {"layer", odToUtf8(text.layer)},
                    {"block", odToUtf8(text.block)},
                    {"text", odToUtf8(text.text)}});
  std::cout << list.dump(2) << '\n';
}

std::string onOneLine(std::u16string_view text) {
  std::string line;
  for (const char unit : odToUtf8(text)) {
    if (unit == '\n') {
      line += "\\n";
    } else {
      line += unit == '\t' ? ' ' : unit;
    }
  }
  return line;
}

void printLines(const std::vector<ListedText>& texts) {
  for (const ListedText& text : texts)
    std::cout << text.handle << '\t' << odToUtf8(text.kind) << '\t' << odToUtf8(text.layer) << '\t'
              << onOneLine(text.text) << '\n';
}

}  // namespace

std::vector<ListedText> textsOf(const OdDbDatabase& database) {
  std::vector<ListedText> texts;
  const auto blocks = odCast<OdDbSymbolTable>(database.getBlockTableId().openObject());
  if (!blocks) return texts;
  for (const OdDbObjectId& id : blocks->records()) {
    const auto block = odCast<OdDbBlockTableRecord>(id.openObject());
    if (!block) continue;
    BlockTexts collected(block->getName().str(), texts);
    for (const OdDbObjectId& entity : block->entities()) collected.add(entity);
  }
  return texts;
}

int listTexts(const std::filesystem::path& drawing, bool json) {
  const OdDbDatabasePtr database = openDrawing(drawing);
  const std::vector<ListedText> texts = textsOf(*database);
  json ? printJson(texts) : printLines(texts);
  return kExitDone;
}
