#pragma once

#include <algorithm>
#include <string>

namespace mtext::reading {

/// The one read position of a parse. Readers move it, and put it back when they fail.
struct text_cursor {
  const char16_t* at;
  const char16_t* last;

  bool ended() const { return at == last; }
  /// The character here is `c`; false at the end of the input.
  bool is_at(char16_t c) const { return at != last && *at == c; }
  /// The two characters here are `a` and `b`.
  bool is_at(char16_t a, char16_t b) const { return last - at >= 2 && at[0] == a && at[1] == b; }

  /// Passes the character `c` if it stands here, and tells whether it did.
  bool accept(char16_t c) {
    bool found = is_at(c);
    if (found) ++at;
    return found;
  }

  /// Goes to the next `c`, or to the end of the input when there is none.
  void skip_to(char16_t c) { at = std::find(at, last, c); }

  /// Goes behind the next `c`, or to the end of the input when there is none.
  void skip_past(char16_t c) {
    skip_to(c);
    if (!ended()) ++at;
  }
};

}  // namespace mtext::reading
