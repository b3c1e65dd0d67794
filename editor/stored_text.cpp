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

}  // namespace

stored_text::stored_text(const mtext::geom_multitext& text, const stored_text* neighbour) {
  piece_finder shared(neighbour);
  for (const auto& range : editing::cut_into_pieces(text.parts)) {
    piece_pointer found = shared.find(text.parts, range);
    m_pieces.push_back(found ? std::move(found) : copied(text.parts, range));
  }
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
