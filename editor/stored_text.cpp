#include "editor/stored_text.h"

#include <algorithm>
#include <unordered_map>

#include "editor/text_pieces.h"
#include "mtext/dispose.h"

namespace {

using piece_pointer = std::shared_ptr<const stored_text::piece>;

/// Finds the pieces of a stored text again, by what they hold.
class piece_finder {
 public:
  explicit piece_finder(const stored_text* stored) {
    if (!stored) return;
    m_pieces = &stored->pieces();
    for (std::size_t i = 0; i < m_pieces->size(); ++i) m_places[(*m_pieces)[i]->fingerprint] = i;
  }

  /// The piece that holds what `range` of `parts` holds, or null. Pieces mostly follow each other as they
  /// did, so the one behind the last find is asked first; of others that look alike only one.
  piece_pointer find(const mtext::geom_parts& parts, const editing::piece_range& range) {
    if (!m_pieces) return nullptr;
    if (m_next < m_pieces->size() && holds(m_next, parts, range)) return (*m_pieces)[m_next++];
    const auto place = m_places.find(range.fingerprint);
    if (place == m_places.end() || !holds(place->second, parts, range)) return nullptr;
    m_next = place->second + 1;
    return (*m_pieces)[place->second];
  }

 private:
  bool holds(std::size_t at, const mtext::geom_parts& parts, const editing::piece_range& range) const {
    const stored_text::piece& piece = *(*m_pieces)[at];
    return piece.fingerprint == range.fingerprint && piece.parts.size() == range.last - range.first &&
           std::equal(piece.parts.begin(), piece.parts.end(),
                      parts.begin() + static_cast<std::ptrdiff_t>(range.first), editing::same_but_placed);
  }

  const std::vector<piece_pointer>* m_pieces = nullptr;
  std::unordered_map<std::uint64_t, std::size_t> m_places;
  std::size_t m_next = 0;
};

piece_pointer copied(const mtext::geom_parts& parts, const editing::piece_range& range) {
  auto piece = std::make_shared<stored_text::piece>();
  piece->fingerprint = range.fingerprint;
  piece->parts.reserve(range.last - range.first);
  piece->parts.insert(piece->parts.end(), parts.begin() + static_cast<std::ptrdiff_t>(range.first),
                      parts.begin() + static_cast<std::ptrdiff_t>(range.last));
  return piece;
}

/// Whether `parts` hold from `first` on what `piece` holds.
bool holds_at(const mtext::geom_parts& parts, std::size_t first, const stored_text::piece& piece) {
  return std::equal(piece.parts.begin(), piece.parts.end(),
                    parts.begin() + static_cast<std::ptrdiff_t>(first), editing::same_but_placed);
}

/// How many pieces the front of `parts` has in common with `pieces`, and behind them the back.
struct common_ends {
  common_ends(const mtext::geom_parts& parts, const std::vector<piece_pointer>& pieces) : last(parts.size()) {
    for (; front < pieces.size() && fits(*pieces[front]) && holds_at(parts, first, *pieces[front]); ++front)
      first += pieces[front]->parts.size();
    while (back < pieces.size() - front) {
      const stored_text::piece& piece = *pieces[pieces.size() - back - 1];
      if (!fits(piece) || !holds_at(parts, last - piece.parts.size(), piece)) break;
      last -= piece.parts.size();
      ++back;
    }
    // A short rest takes a neighbour in, lest edit upon edit leaves a text in crumbs.
    for (; back > 0 && last - first < editing::kLeastPiece; --back)
      last += pieces[pieces.size() - back]->parts.size();
  }

  bool fits(const stored_text::piece& piece) const { return piece.parts.size() <= last - first; }

  std::size_t front = 0;  ///< pieces
  std::size_t back = 0;   ///< pieces
  std::size_t first = 0;  ///< part behind those in front
  std::size_t last;       ///< first part of those at the back
};

}  // namespace

stored_text::stored_text(const mtext::geom_multitext& text, const stored_text* neighbour) {
  static const std::vector<piece_pointer> none;
  const std::vector<piece_pointer>& near = neighbour ? neighbour->m_pieces : none;
  const common_ends common(text.parts, near);
  m_pieces.assign(near.begin(), near.begin() + static_cast<std::ptrdiff_t>(common.front));
  // Between the ends there may be several places that changed, and equal pieces between them.
  piece_finder shared(common.first < common.last ? neighbour : nullptr);
  for (const auto& range : editing::cut_into_pieces(text.parts, common.first, common.last)) {
    piece_pointer found = shared.find(text.parts, range);
    m_pieces.push_back(found ? std::move(found) : copied(text.parts, range));
  }
  m_pieces.insert(m_pieces.end(), near.end() - static_cast<std::ptrdiff_t>(common.back), near.end());
  m_pieces.shrink_to_fit();
  m_frame.format = text.format;
  m_frame.info = text.info;
  m_frame.marks = text.marks;
}

mtext::geom_multitext stored_text::restored() const {
  mtext::geom_multitext text = m_frame;
  std::size_t count = 0;
  for (const auto& each : m_pieces) count += each->parts.size();
  text.parts.reserve(count);
  for (const auto& each : m_pieces)
    text.parts.insert(text.parts.end(), each->parts.begin(), each->parts.end());
  mtext::dispose(text);
  return text;
}
