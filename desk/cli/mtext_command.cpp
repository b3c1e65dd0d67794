#include "desk/cli/mtext_command.h"

#include <iostream>

#include "desk/cli/exit_code.h"
#include "desk/cli/file_error.h"
#include "desk/cli/input_file.h"
#include "desk/cli/text_frame.h"
#include "desk/text_json/layout_json.h"
#include "desk/text_json/multitext_json.h"
#include "mtext/escape.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "od/base/unicode.h"

namespace {

std::u16string textOf(const MTextOptions& options) {
  std::string bytes = readInput(options.file, "the text");
  if (bytes.ends_with('\n')) bytes.pop_back();
  if (bytes.ends_with('\r')) bytes.pop_back();
  std::u16string text = odToUtf16(bytes);
  if (odToUtf8(text) != bytes) throw FileError(inputName(options.file), "the text is not UTF-8.");
  return text;
}

std::string plain(const std::u16string& text) {
  std::u16string lines = mtext::unformat_mtext(text.c_str());
  std::erase(lines, u'\r');
  return odToUtf8(lines);
}

mtext::multitext parsed(const std::u16string& text, const mtext::format::string& base) {
  mtext::multitext result;
  mtext::parse(text, base, result, {});
  return result;
}

std::string rewritten(const std::u16string& text, const mtext::format::string& base) {
  return odToUtf8(mtext::serialize(parsed(text, base), base, base.height));
}

void tellLackingFonts(const TextFrame& frame) {
  for (const std::u16string& sentence : frame.lackingFonts()) std::cerr << odToUtf8(sentence) << '\n';
}

std::string layoutJson(const TextFrame& frame, const std::u16string& text) {
  const mtext::geom_multitext laid = frame.layOut(text);
  tellLackingFonts(frame);
  return text_json::json{{"lines", text_json::write_lines(laid)}, {"columns", text_json::write_columns(laid)}}
      .dump();
}

void draw(const MTextOptions& options, const std::u16string& text) {
  TextFrame frame(options);
  frame.draw(text, inputName(options.file), options.picture);
  tellLackingFonts(frame);
}

std::string answer(const MTextOptions& options, const std::u16string& text) {
  switch (options.action) {
    case MTextOptions::plain:
      return plain(text);
    case MTextOptions::parse:
      return text_json::write_multitext(parsed(text, baseFormat(options))).dump();
    case MTextOptions::format:
      return rewritten(text, baseFormat(options));
    default:
      return layoutJson(TextFrame(options), text);
  }
}

}  // namespace

int runMText(const MTextOptions& options) {
  const std::u16string text = textOf(options);
  if (!options.picture.empty()) {
    draw(options, text);
    return kExitDone;
  }
  std::cout << answer(options, text) << '\n';
  if (!std::cout.flush()) throw FileError("standard output", "it cannot be written.");
  return kExitDone;
}
