#include "desk/cli/mtext_command.h"

#include <iostream>

#include "desk/cli/text_frame.h"
#include "desk/program/exit_code.h"
#include "desk/program/file_error.h"
#include "desk/program/input_file.h"
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

void draw(const MTextOptions& options, const FrameStyle& style, const std::u16string& text) {
  TextFrame frame(style);
  frame.draw(text, inputName(options.file), options.picture, options.size);
  tellLackingFonts(frame);
}

void print(const MTextOptions& options, const FrameStyle& style, const std::u16string& text) {
  switch (options.action) {
    case MTextOptions::plain:
      std::cout << plain(text);
      break;
    case MTextOptions::parse:
      text_json::print_multitext(std::cout, parsed(text, style.format));
      break;
    case MTextOptions::format:
      std::cout << rewritten(text, style.format);
      break;
    case MTextOptions::layout:
      std::cout << layoutJson(TextFrame(style), text);
      break;
  }
  std::cout << '\n';
}

}  // namespace

FrameStyle frameStyle(const MTextOptions& options) {
  if (options.style == "-" && options.file == "-")
    throw FileError(inputName("-"), "it cannot be both the style and the text.");
  FrameStyle style = options.style.empty() ? FrameStyle() : readFrameStyle(options.style);
  if (options.height) style.setHeight(*options.height);
  if (options.font) style.setFont(odToUtf16(*options.font));
  if (options.width) style.frame.columns.width = *options.width;
  return style;
}

int runMText(const MTextOptions& options) {
  const FrameStyle style = frameStyle(options);
  const std::u16string text = textOf(options);
  if (!options.picture.empty()) {
    draw(options, style, text);
    return kExitDone;
  }
  print(options, style, text);
  if (!std::cout.flush()) throw FileError("standard output", "it cannot be written.");
  return kExitDone;
}
