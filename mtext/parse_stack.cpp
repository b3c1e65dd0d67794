#include <string_view>

#include "mtext/parse_state.h"

namespace mtext::reading {

namespace {

/// The writer puts a stack into a group of 0.7 times the height; the part holds the full height.
constexpr double k_full_height = 1.4285714285714286;
constexpr std::u16string_view k_separators = u"/^#";

/// Up to one of `ends` without a backslash before it, or to the end of the input. A backslash takes the next
/// character as it is.
std::u16string read_operand(text_cursor& cursor, std::u16string_view ends) {
  std::u16string operand;
  while (!cursor.ended() && ends.find(*cursor.at) == ends.npos) {
    if (*cursor.at == u'\\' && cursor.at + 1 != cursor.last) ++cursor.at;
    operand += *cursor.at++;
  }
  return operand;
}

}  // namespace

bool parse_state::read_stack() {
  auto* read = new stack(formats.top(), {}, {}, 0);
  target.parts.push_back(read);
  read->format.height *= k_full_height;
  read->numerator = read_operand(cursor, u"#/;^");
  auto kind = cursor.ended() ? k_separators.npos : k_separators.find(*cursor.at);
  if (kind != k_separators.npos) {
    ++cursor.at;
    read->kind = static_cast<std::uint32_t>(kind);
  }
  read->denominator = read_operand(cursor, u";");
  cursor.accept(u';');
  return true;
}

}  // namespace mtext::reading
