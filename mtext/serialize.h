#pragma once

#include <cstdint>
#include <string>

#include "mtext/multitext.h"
#include "od/base/export.h"

namespace mtext {

/// Where the writer of format codes stands, carried from part to part.
struct serialize_state {
  /// The brace group now open: 0 none, 1 one that differs from the base in no font, 2 one with a font change.
  std::uint32_t group = 0;
  /// Place in the line: 0 at its start or just behind format codes, 1 behind blanks or tabs only, 2 behind
  /// visible content.
  std::uint32_t line = 0;
};

/// The format-code string of `text`. What equals `base` is written without codes.
/// `base_height`, in drawing units, turns paragraph lengths kept in drawing units into multiples of it.
/// Throws `std::out_of_range` when the name of a shape font has less than four characters.
SCRIBE_EXPORT std::u16string serialize(const multitext& text, const format::string& base, double base_height);

/// Appends the full code of a first paragraph to `out`; nothing for a default one. `px_written` tells whether
/// a
/// `\px` was written before, and becomes true with the first. Always true.
SCRIBE_EXPORT bool serialize(std::u16string& out, double base_height, const format::paragraph& p,
                             bool& px_written);

/// Appends one part to `out`. `current` is the format of the part written last, `current_paragraph` that of
/// the paragraph; both are brought up to date. `plain_spaces` leaves blanks inside words as they are, instead
/// of writing them as `\~`. Throws as `serialize` of a whole text does, with what was written so far in
/// `out`. Always true.
SCRIBE_EXPORT bool serialize(std::u16string& out, double base_height, format::paragraph& current_paragraph,
                             const format::string& base, format::string& current, serialize_state& state,
                             const part& part, bool& px_written, bool plain_spaces);

/// Closes the group that is open, if one is. Always true.
SCRIBE_EXPORT bool serialize(std::u16string& out, serialize_state& state);

/// The text without any formatting. `tilde_spaces` writes blanks inside words as `\~`.
SCRIBE_EXPORT std::u16string serialize_raw(const multitext& text, bool tilde_spaces);
/// Appends the text without formatting; ends at the first part of an unknown type, with false.
SCRIBE_EXPORT bool serialize_raw(std::u16string& out, const multitext& text, bool tilde_spaces);
/// Appends one part without formatting; false for an unknown type.
SCRIBE_EXPORT bool serialize_raw(std::u16string& out, const part& part, bool tilde_spaces);

}  // namespace mtext
