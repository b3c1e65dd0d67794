#include <optional>
#include <string_view>

#include "mtext/parse_state.h"

namespace mtext::reading {

namespace {

std::optional<unsigned> hexadecimal_digit(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'a' && c <= u'f') return c - u'a' + 10;
  if (c >= u'A' && c <= u'F') return c - u'A' + 10;
  return std::nullopt;
}

/// Four hexadecimal digits; nothing, and no move, when there are less.
std::optional<char16_t> read_code_unit(text_cursor& cursor) {
  if (cursor.last - cursor.at < 4) return std::nullopt;
  unsigned unit = 0;
  for (int i = 0; i < 4; ++i) {
    auto digit = hexadecimal_digit(cursor.at[i]);
    if (!digit) return std::nullopt;
    unit = unit * 16 + *digit;
  }
  cursor.at += 4;
  return static_cast<char16_t>(unit);
}

/// The symbol of the letter behind "%%".
std::optional<char16_t> symbol_of(char16_t letter) {
  switch (letter) {
    case u'c':
    case u'C':
      return u'\u2205';
    case u'd':
    case u'D':
      return u'\u00B0';
    case u'p':
    case u'P':
      return u'\u00B1';
    default:
      return std::nullopt;
  }
}

/// One of the symbols behind "%%", at the cursor.
std::optional<char16_t> read_symbol(text_cursor& cursor) {
  if (cursor.last - cursor.at < 3 || !cursor.is_at(u'%', u'%')) return std::nullopt;
  auto symbol = symbol_of(cursor.at[2]);
  if (symbol) cursor.at += 3;
  return symbol;
}

bool is_code_unit_escape(const text_cursor& cursor) {
  return cursor.last - cursor.at >= 3 && (cursor.at[1] == u'U' || cursor.at[1] == u'u') &&
         cursor.at[2] == u'+';
}

/// The character that the two units here stand for: an escaped brace or backslash, or a blank that does not
/// break.
std::optional<char16_t> escaped_character(const text_cursor& cursor) {
  if (cursor.last - cursor.at < 2) return std::nullopt;
  char16_t next = cursor.at[1];
  if (next == u'~') return u' ';
  if (std::u16string_view(u"{}\\").find(next) != std::u16string_view::npos) return next;
  return std::nullopt;
}

}  // namespace

bool parse_state::read_literal() {
  if (cursor.ended()) return false;
  if (*cursor.at == u'\\') return read_escape();
  if (auto symbol = read_symbol(cursor)) {
    append_character(*symbol);
    return true;
  }
  char16_t c = *cursor.at++;
  if (c == u' ') {
    append_blank();
  } else {
    append_character(c);
  }
  return true;
}

bool parse_state::read_escape() {
  if (is_code_unit_escape(cursor)) {
    text_cursor digits{cursor.at + 3, cursor.last};
    auto unit = read_code_unit(digits);
    if (!unit) return false;
    cursor = digits;
    if (*unit == u' ') {
      append_blank();
    } else {
      append_character(*unit);
    }
    return true;
  }
  auto escaped = escaped_character(cursor);
  append_character(escaped.value_or(u'\\'));
  cursor.at += escaped ? 2 : 1;
  return true;
}

void parse_state::append_character(char16_t c) {
  auto& parts = target.parts;
  if (start_new || parts.back().type() != part_string) {
    parts.push_back(new string(formats.top(), std::u16string(1, c)));
  } else {
    static_cast<string&>(parts.back()).text += c;
  }
}

void parse_state::append_blank() {
  auto& parts = target.parts;
  if (start_new || parts.back().type() != part_spaces) {
    parts.push_back(new spaces(formats.top(), 1));
  } else {
    ++static_cast<spaces&>(parts.back()).count;
  }
}

}  // namespace mtext::reading
