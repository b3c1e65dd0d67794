#pragma once

#include "fuzz/text_input.h"
#include "mtext/geom_multitext.h"

namespace fuzz {

/// Changes `text` as the next bytes of `input` tell, and requires what the change promises. Texts stay
/// shorter than `longest_text`.
void take_step(mtext::geom_multitext& text, byte_source& input);

/// Parts beyond which steps erase instead of inserting.
inline constexpr std::size_t longest_text = 2000;

/// The steps by what they change.
void edit_parts(mtext::geom_multitext& text, byte_source& input);
void edit_marks(mtext::geom_multitext& text, byte_source& input);
void edit_formats(mtext::geom_multitext& text, byte_source& input);
void edit_labels(mtext::geom_multitext& text, byte_source& input);

/// A range of positions of `text`: its first one and how many parts.
struct part_range {
  std::size_t first;
  std::size_t count;
};
part_range range_in(const mtext::geom_multitext& text, byte_source& input);

}  // namespace fuzz
