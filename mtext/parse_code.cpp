#include <cstdint>

#include "mtext/parse_number.h"
#include "mtext/parse_state.h"

namespace mtext::reading {

namespace {

constexpr double k_degree = 0.017453292519943295;

/// The code's number has an `x` behind it: it multiplies what is in force instead of replacing it.
struct factor_or_value {
  double number;
  bool is_factor;
};

std::optional<factor_or_value> read_factor_or_value(text_cursor& cursor) {
  auto number = read_number(cursor);
  if (!number) return std::nullopt;
  bool is_factor = cursor.accept(u'x');
  cursor.accept(u';');
  return factor_or_value{*number, is_factor};
}

std::optional<std::uint32_t> read_code_number(text_cursor& cursor) {
  auto number = read_unsigned(cursor);
  if (number) cursor.accept(u';');
  return number;
}

bool set_flag(format_stack& formats, std::uint32_t flag, bool on) {
  auto& flags = formats.change_top().flags;
  flags = on ? flags | flag : flags & ~flag;
  return true;
}

bool read_height(text_cursor& cursor, format_stack& formats) {
  auto read = read_factor_or_value(cursor);
  if (!read) return false;
  auto& format = formats.change_top();
  if (!read->is_factor) format.height_kind = 0;
  format.height = read->is_factor ? read->number * format.height : read->number;
  return true;
}

/// `unit` is the number 1 in the record's unit.
bool read_real(text_cursor& cursor, format_stack& formats, double format::string::*field, double unit = 1.0) {
  auto read = read_factor_or_value(cursor);
  if (!read) return false;
  double& value = formats.change_top().*field;
  value = read->is_factor ? value * read->number : read->number * unit;
  return true;
}

bool read_color_index(text_cursor& cursor, format_stack& formats) {
  auto number = read_code_number(cursor);
  if (!number) return false;
  auto& color = formats.change_top().color;
  color.kind = 0;
  color.index = static_cast<std::uint16_t>(*number);
  return true;
}

bool read_true_color(text_cursor& cursor, format_stack& formats) {
  auto number = read_code_number(cursor);
  if (!number) return false;
  auto byte = [&](int shift) { return static_cast<std::uint8_t>(*number >> shift); };
  auto& color = formats.change_top().color;
  color.kind = 1;
  color.red = byte(0);
  color.green = byte(8);
  color.blue = byte(16);
  color.top = byte(24);
  return true;
}

bool read_align(text_cursor& cursor, format_stack& formats) {
  auto number = read_code_number(cursor);
  if (!number) return false;
  formats.change_top().align = *number == 1 || *number == 2 ? *number : 0;
  return true;
}

bool begin_paragraph(parse_state& state, bool column_break) {
  auto* begun = new new_paragraph(*state.current_paragraph, state.formats.top(), column_break);
  state.target.parts.push_back(begun);
  state.current_paragraph = &begun->paragraph;
  return true;
}

/// The code of `letter`, whose letter has been passed.
bool read_code_of(char16_t letter, parse_state& state) {
  auto& cursor = state.cursor;
  auto& formats = state.formats;
  switch (letter) {
    case u'F':
    case u'f':
      return state.read_font(/*is_shx=*/letter == u'F');
    case u'L':
    case u'l':
      return set_flag(formats, format::flag_underline, letter == u'L');
    case u'O':
    case u'o':
      return set_flag(formats, format::flag_overline, letter == u'O');
    case u'N':
    case u'P':
      return begin_paragraph(state, /*column_break=*/letter == u'N');
    case u'C':
      return read_color_index(cursor, formats);
    case u'c':
      return read_true_color(cursor, formats);
    case u'H':
      return read_height(cursor, formats);
    case u'W':
      return read_real(cursor, formats, &format::string::width_factor);
    case u'Q':
      return read_real(cursor, formats, &format::string::oblique, k_degree);
    case u'T':
      return read_real(cursor, formats, &format::string::tracking);
    case u'A':
      return read_align(cursor, formats);
    case u'S':
      return state.read_stack();
    case u'p':
      return state.read_paragraph_format();
    default:
      return false;
  }
}

}  // namespace

bool parse_state::read_code() {
  if (cursor.accept(u'\t')) {
    target.parts.push_back(new tab(formats.top()));
    return true;
  }
  if (cursor.accept(u'\n')) {
    target.parts.push_back(new new_line(formats.top()));
    return true;
  }
  return read_backslash_code();
}

bool parse_state::read_backslash_code() {
  auto backslash = cursor;
  if (!cursor.accept(u'\\')) return false;
  if (!cursor.ended() && read_code_of(*cursor.at++, *this)) return true;
  cursor = backslash;
  return false;
}

}  // namespace mtext::reading
