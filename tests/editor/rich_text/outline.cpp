#include "tests/editor/rich_text/outline.h"

#include <array>
#include <cstdio>

#include "od/base/unicode.h"

namespace {

std::string marks_of(const rich::style& style) {
  std::string marks;
  if (style.bold) marks += 'b';
  if (style.italic) marks += 'i';
  if (style.underline) marks += 'u';
  std::array<char, 32> digits{};
  if (style.color) {
    std::snprintf(digits.data(), digits.size(), "#%06x", *style.color);
    marks += digits.data();
  }
  if (style.size > 0) {
    std::snprintf(digits.data(), digits.size(), "%g", style.size);
    marks += digits.data();
  }
  if (style.script == rich::script::upper) marks += '^';
  if (style.script == rich::script::lower) marks += '_';
  return marks;
}

}  // namespace

std::string outline(const rich::text& text) {
  std::string result;
  for (const rich::paragraph& each : text.paragraphs) {
    if (&each != &text.paragraphs.front()) result += "¶";
    if (!each.label.empty()) result += "<" + odToUtf8(each.label) + ">";
    for (const rich::run& run : each.runs) {
      const std::string marks = marks_of(run.style);
      const std::string characters = odToUtf8(run.text);
      result += marks.empty() ? characters : marks + "[" + characters + "]";
    }
  }
  return result;
}
