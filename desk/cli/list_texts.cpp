#include "desk/cli/list_texts.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "desk/document/drawing_file.h"
#include "desk/program/exit_code.h"
#include "desk/texts/drawing_texts.h"
#include "desk/texts/one_line.h"
#include "od/base/unicode.h"

namespace {

void printJson(const std::vector<DrawingText>& texts) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const DrawingText& text : texts)
    list.push_back({{"handle", handleOf(text)},
                    {"kind", nameOf(text.kind)},
                    {"layer", odToUtf8(text.layer)},
                    {"block", odToUtf8(text.block)},
                    {"text", odToUtf8(text.plain)}});
  std::cout << list.dump(2) << '\n';
}

void printLines(const std::vector<DrawingText>& texts) {
  for (const DrawingText& text : texts)
    std::cout << handleOf(text) << '\t' << nameOf(text.kind) << '\t' << odToUtf8(text.layer) << '\t'
              << onOneLine(odToUtf8(text.plain)) << '\n';
}

}  // namespace

int listTexts(const std::filesystem::path& drawing, bool json) {
  const OdDbDatabasePtr database = openDrawing(drawing);
  const std::vector<DrawingText> texts = textsOf(*database);
  json ? printJson(texts) : printLines(texts);
  return kExitDone;
}
