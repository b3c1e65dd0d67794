#include "desk/script/script_reader.h"

#include "desk/script/script_verb.h"
#include "od/base/unicode.h"

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view takeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

bool isRemark(std::string_view line) {
  const std::size_t start = line.find_first_not_of(" \t");
  return start != std::string_view::npos && line[start] == ';';
}

}  // namespace

Script readScript(std::string_view text, const std::string& file) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  Script script;
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = takeLine(text);
    if (isRemark(line)) continue;
    if (!line.starts_with('@')) {
      script.push_back({number, TypeLine{odToUtf16(line)}});
      continue;
    }
    try {
      script.push_back({number, readVerb(odToUtf16(line.substr(1)))});
    } catch (const std::invalid_argument& reason) {
      throw ScriptError(file, number, reason.what());
    }
  }
  return script;
}
