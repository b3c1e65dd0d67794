#include <algorithm>
#include <string_view>

#include "mtext/parse_number.h"
#include "mtext/parse_state.h"
#include "mtext/parse_tabs.h"

namespace mtext::reading {

namespace {

/// The length of the letter, or null for any other letter.
double* length_of(char16_t letter, format::paragraph& paragraph) {
  switch (letter) {
    case u'i':
      return &paragraph.indent;
    case u'l':
      return &paragraph.left;
    case u'r':
      return &paragraph.right;
    case u'b':
      return &paragraph.before;
    case u'a':
      return &paragraph.after;
    default:
      return nullptr;
  }
}

/// Takes the character behind the `q` whatever it is, a `;` too.
void read_alignment(text_cursor& cursor, std::uint32_t& alignment) {
  constexpr std::u16string_view letters = u"*lcrjd";
  if (cursor.ended()) return;
  auto number = letters.find(*cursor.at++);
  if (number != letters.npos) alignment = static_cast<std::uint32_t>(number);
}

/// Takes the character behind the `s` whatever it is, a `;` too.
void read_spacing(text_cursor& cursor, format::line_spacing& spacing) {
  constexpr std::u16string_view letters = u"*aem";
  if (cursor.ended()) return;
  auto style = letters.find(*cursor.at++);
  if (style == letters.npos) return;
  auto value = style == 0 ? 1.0 : read_number(cursor);
  if (value) spacing = {static_cast<std::uint32_t>(style), *value};
}

/// Reads the item that begins here, if one does.
bool read_item_here(text_cursor& cursor, format::paragraph& paragraph) {
  char16_t letter = *cursor.at;
  auto item = std::u16string_view(u"ilrbaqst").find(letter);
  if (item == std::u16string_view::npos) return false;
  ++cursor.at;
  if (double* length = length_of(letter, paragraph)) *length = read_number(cursor).value_or(0.0);
  if (letter == u'q') read_alignment(cursor, paragraph.alignment);
  if (letter == u's') read_spacing(cursor, paragraph.spacing);
  if (letter == u't') paragraph.tabs = read_tabs(cursor);
  return true;
}

/// The next item, with all that stands before it. False when the code has no more; the code's end is searched
/// from the cursor then, so it may stand anywhere before it.
bool read_item(text_cursor& cursor, format::paragraph& paragraph) {
  while (!cursor.ended() && !cursor.is_at(u';')) {
    if (read_item_here(cursor, paragraph)) return true;
    ++cursor.at;
  }
  return false;
}

void keep_first_line_on_paper(format::paragraph& paragraph) {
  if (paragraph.left < 0) paragraph.left = 0;
  if (paragraph.left + paragraph.indent < 0) paragraph.indent = -paragraph.left;
}

}  // namespace

bool parse_state::read_paragraph_format() {
  if (cursor.accept(u'x')) px_seen = true;
  current_paragraph->relative = px_seen;
  while (read_item(cursor, *current_paragraph)) {
  }
  keep_first_line_on_paper(*current_paragraph);
  cursor.skip_past(u';');
  return true;
}

}  // namespace mtext::reading
