#pragma once

#include "mtext/format_stack.h"
#include "mtext/multitext.h"
#include "mtext/text_cursor.h"
#include "od/field/nested_markers.h"

namespace mtext::reading {

/// What one parse carries along, and the readers that share it.
/// Each `read_...` tells whether it accepted what stands at the cursor; if not, the cursor is where it was.
struct parse_state {
  text_cursor cursor;
  multitext& target;
  format_stack formats;
  OdNestedMarkers markers;
  /// A `\px` has been met; never reset, and no group scopes it.
  bool px_seen = false;
  /// The record that `\p` codes write: that of the paragraph read last.
  format::paragraph* current_paragraph = &target.paragraph;
  /// The next character begins a new part, because something else than a character came before it.
  bool start_new = true;

  /// Empties `result` for the text between `first` and `last`.
  parse_state(const char16_t* first, const char16_t* last, const format::string& base, multitext& result)
      : cursor{first, last}, target(result), formats(base) {
    target = multitext();
  }

  /// A tab, a line feed or a backslash code.
  bool read_code();
  /// The codes of which each has a file of its own; the cursor stands behind the code's letter.
  bool read_font(bool is_shx);
  bool read_stack();
  bool read_paragraph_format();

  /// A field between its markers.
  bool read_field();

  /// A character of the text, plain or escaped. Fails at the end of the input and at a `\U+` without its four
  /// digits, where reading ends.
  bool read_literal();

  /// Reads all there is.
  void run();

 private:
  bool read_backslash_code();
  bool read_token();
  bool read_escape();
  void append_character(char16_t c);
  void append_blank();
};

}  // namespace mtext::reading
