#pragma once

#include <cstddef>
#include <vector>

#include "mtext/convert_info.h"
#include "mtext/geom_line.h"
#include "mtext/geom_part.h"
#include "mtext/mark.h"
#include "od/base/export.h"

namespace mtext {

/// The place in a text that a point hits.
struct text_hit {
  /// The value of `line` in a text without lines.
  static constexpr std::size_t no_line = static_cast<std::size_t>(-1);

  std::size_t at = 0;          ///< position in the text
  std::size_t line = no_line;  ///< index into `lines`
  std::size_t column = 0;      ///< the number of columns if no column holds `at`
  bool outside = true;         ///< the point lies outside the box of the line and its column
};

/// A laid-out text: one element per character, the lines and columns that `dispose` made of them, and the
/// marks that stay on the text while it changes.
///
/// A value: a copy clones all parts and marks, a move leaves its source without any. Lines and columns are
/// stale from an edit until the next `dispose`. Parts and marks move only through the members here; every
/// mark that was in range stays in range. Their exceptions are `std::invalid_argument`.
class SCRIBE_EXPORT geom_multitext {
 public:
  /// A `count` that reaches to the end of the text.
  static constexpr std::size_t to_end = static_cast<std::size_t>(-1);

  geom_multitext() = default;
  geom_multitext(const geom_multitext& other) = default;
  geom_multitext(geom_multitext&& other) noexcept;
  geom_multitext& operator=(const geom_multitext& other);
  geom_multitext& operator=(geom_multitext&& other) noexcept;
  ~geom_multitext() = default;

  void swap(geom_multitext& other) noexcept;  ///< exchanges everything, at no cost

  /// Adds parts and marks of `other` at the end, and leaves it without them. Own marks stay as they are.
  void append(geom_multitext&& other);

  /// Inserts parts and marks of `other` before position `at`. Throws "geom_multitext::insert: invalid
  /// position" if `at` is beyond the end.
  void insert(std::size_t at, geom_multitext&& other);
  void insert(std::size_t at, const geom_multitext& other);

  /// Erases `count` parts from `first` on; `drop_empty` also removes every solid that covers nothing. Throws
  /// "geom_multitext::erase: invalid positions".
  void erase(std::size_t first, std::size_t count, bool drop_empty);
  void erase(const mtext::marks::mark& range, bool drop_empty);

  /// Replaces several ranges in one go; `new_parts` holds what takes their places, one after the other, and
  /// is left empty. Parts and marks end as if each range were erased, without dropping empty marks, and its
  /// new parts inserted, from the first to the last; positions are those before. Costs as much as reading the
  /// text once. Throws "geom_multitext::replace: invalid positions" unless the ranges ascend, do not overlap,
  /// lie in the text and have as many new parts as there are.
  void replace(const std::vector<mtext::marks::replaced_range>& ranges, geom_parts& new_parts);

  /// Cuts the text down to `count` parts from `first` on, and removes every solid that covers nothing. Throws
  /// as `erase` does.
  void keep(std::size_t first, std::size_t count);

  /// A copy on which `keep` ran; costs a copy of the range alone.
  geom_multitext slice(std::size_t first, std::size_t count) const;

  /// The text of one line without its line or paragraph end, with this line as its only one. Throws
  /// "geom_multitext::line: mtext has not enough lines".
  geom_multitext line(std::size_t index) const;

  /// Throws "geom_multitext::verify_mark: mark doesn't belong to multitext" unless both ends are positions.
  void verify_mark(const mtext::marks::mark& mark) const;
  /// Throws "geom_multitext::verify_elem: at doesn't belong to multitext" unless `at` is a position.
  void verify_elem(std::size_t at) const;

  /// The place that a point in text coordinates hits: the nearest column, the nearest line that touches it,
  /// the nearer side of the part there.
  text_hit position_at(double x, double y) const;

  mtext::format::paragraph format;   ///< of the first paragraph; later ones are on the part that opens them
  geom_parts parts;                  ///< the sequence
  std::vector<geom_line> lines;      ///< made by `dispose`
  convert_info info;                 ///< settings
  std::vector<geom_column> columns;  ///< made by `dispose`
  mtext::marks::mark_list marks;     ///< all marks; the text owns them
};

/// The format of the paragraph that holds position `at`: that of the nearest paragraph end before it, or of
/// the text. `at` must be a position.
SCRIBE_EXPORT const format::paragraph& paragraph_at(const geom_multitext& text, std::size_t at);
SCRIBE_EXPORT format::paragraph& paragraph_at(geom_multitext& text, std::size_t at);

}  // namespace mtext
