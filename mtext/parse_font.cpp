#include <algorithm>
#include <string_view>

#include "mtext/parse_number.h"
#include "mtext/parse_state.h"

namespace mtext::reading {

namespace {

constexpr std::u16string_view k_shape_suffix = u".shx";

std::u16string read_font_name(text_cursor& cursor) {
  constexpr std::u16string_view ends = u"|;";
  const char16_t* begin = cursor.at;
  cursor.at = std::find_first_of(begin, cursor.last, ends.begin(), ends.end());
  return {begin, cursor.at};
}

/// `1` sets the flag, any other character clears it; the end of the code ends the options.
bool read_flag_option(text_cursor& cursor, std::uint32_t& flags, std::uint32_t flag) {
  if (cursor.ended() || cursor.is_at(u';')) return false;
  flags = *cursor.at++ == u'1' ? flags | flag : flags & ~flag;
  return true;
}

bool read_number_option(text_cursor& cursor, std::uint32_t& field) {
  auto number = read_unsigned(cursor);
  if (number) field = *number;
  return number.has_value();
}

/// One option, with all that stands before it. False when there are no more.
bool read_option(text_cursor& cursor, format::string& format) {
  constexpr std::u16string_view letters = u";bcip";
  cursor.at = std::find_first_of(cursor.at, cursor.last, letters.begin(), letters.end());
  if (cursor.ended() || cursor.is_at(u';')) return false;
  switch (*cursor.at++) {
    case u'b':
      return read_flag_option(cursor, format.flags, format::flag_bold);
    case u'i':
      return read_flag_option(cursor, format.flags, format::flag_italic);
    case u'c':
      return read_number_option(cursor, format.charset);
    default:
      return read_number_option(cursor, format.pitch);
  }
}

}  // namespace

bool parse_state::read_font(bool is_shx) {
  auto name = read_font_name(cursor);
  if (name.empty()) return false;
  if (is_shx && !name.ends_with(k_shape_suffix)) name += k_shape_suffix;
  auto& format = formats.change_top();
  format.font = std::move(name);
  format.is_shx = is_shx;
  while (read_option(cursor, format)) {
  }
  cursor.skip_past(u';');
  return true;
}

}  // namespace mtext::reading
