#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "mtext/geom_part.h"

/// How a text is cut into pieces that two states of it can share.
namespace editing {

/// A stretch of a text, and a number that equal stretches have in common.
struct piece_range {
  std::size_t first;
  std::size_t last;
  std::uint64_t fingerprint;
};

/// Parts of the shortest piece, but for one that is all between two others.
constexpr std::size_t kLeastPiece = 8;

/// Cuts the parts from `first` to `last` into pieces of about two dozen. A piece ends where the last few
/// characters say so, wherever the piece began: behind an edit the cuts soon fall where they fell before.
std::vector<piece_range> cut_into_pieces(const mtext::geom_parts& parts, std::size_t first, std::size_t last);

/// Whether two formats are the same exactly, where their own comparison allows a tolerance.
bool same_format(const mtext::format::string& a, const mtext::format::string& b);

/// Whether two parts are the same but for their places. The widths of tabs are the work of layout, and
/// places.
bool same_but_placed(const mtext::geom_part& a, const mtext::geom_part& b);

}  // namespace editing
