#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "mtext/geom_multitext.h"

/// A text put aside, in little memory: what it has in common with a neighbour, another stored state of the
/// same text, is kept once for both. So a state costs what the edit changed, and a few bytes for each piece
/// of the rest, however long the text is.
///
/// Lines, columns and places are not kept: they follow from the text and are laid out again. Everything else
/// comes back as it was.
class stored_text {
 public:
  /// A stretch of parts. Where pieces end depends only on the characters near by, so that an edit leaves the
  /// pieces before and behind it as they were. Sizes are those that were measured; places have no meaning.
  struct piece {
    std::uint64_t fingerprint;  ///< equal for equal pieces
    mtext::geom_parts parts;
  };

  /// Nothing stored.
  stored_text() = default;
  /// Stores `text` and shares pieces with `neighbour`, if there is one.
  explicit stored_text(const mtext::geom_multitext& text, const stored_text* neighbour = nullptr);

  /// The text, laid out.
  mtext::geom_multitext restored() const;

  /// One behind the other they are the text.
  const std::vector<std::shared_ptr<const piece>>& pieces() const { return m_pieces; }

 private:
  std::vector<std::shared_ptr<const piece>> m_pieces;
  mtext::geom_multitext m_frame;  ///< all but the parts, the lines and the columns
};
