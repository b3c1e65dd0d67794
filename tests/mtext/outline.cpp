#include "tests/mtext/outline.h"

#include "mtext/parse.h"
#include "od/base/unicode.h"

namespace mtext_test {

namespace {

std::string stack_outline(const mtext::stack& part) {
  constexpr const char* separators[] = {"/", "^", "#"};
  return "<" + odToUtf8(part.numerator) + separators[part.kind] + odToUtf8(part.denominator) + ">";
}

std::string field_outline(const mtext::field& part) {
  return "%" + odToUtf8(part.code) + (part.value ? "=" + odToUtf8(*part.value) : "") + "%";
}

std::string outline(const mtext::part& part) {
  switch (part.type()) {
    case mtext::part_string:
      return "[" + odToUtf8(static_cast<const mtext::string&>(part).text) + "]";
    case mtext::part_spaces:
      return "_" + std::to_string(static_cast<const mtext::spaces&>(part).count);
    case mtext::part_tab:
      return "tab";
    case mtext::part_new_line:
      return "line";
    case mtext::part_stack:
      return stack_outline(static_cast<const mtext::stack&>(part));
    case mtext::part_new_paragraph:
      return static_cast<const mtext::new_paragraph&>(part).column_break ? "N" : "P";
    default:
      return field_outline(static_cast<const mtext::field&>(part));
  }
}

}  // namespace

std::string outline(const mtext::multitext& text) {
  std::string result;
  for (const auto& part : text.parts) result += (result.empty() ? "" : " ") + outline(part);
  return result;
}

mtext::multitext read(const std::u16string& text, const mtext::format::string& base) {
  mtext::multitext result;
  mtext::parse(text, base, result, {});
  return result;
}

std::string outline_of(const std::u16string& text) { return outline(read(text)); }

}  // namespace mtext_test
