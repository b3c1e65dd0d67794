#pragma once

#include <boost/ptr_container/ptr_vector.hpp>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "od/base/export.h"

/// Ranges of a text that survive edits. A position is an index into `geom_multitext::parts`: position p
/// stands before part p, and the number of parts is the end of the text.
namespace mtext::marks {

/// A range of parts that others take the place of.
struct replaced_range {
  std::size_t first;      ///< position of the first part
  std::size_t count;      ///< parts before
  std::size_t new_count;  ///< parts afterwards
};

/// A plain range. The base of all marks, and of use by itself.
class SCRIBE_EXPORT mark {
 public:
  mark() = default;
  mark(std::size_t from, std::size_t to) : begin(from), end(to) {}
  mark(const mark&) = default;
  mark& operator=(const mark&) = default;
  virtual ~mark() = default;

  /// A heap copy of the same dynamic type, owned by the caller.
  virtual mark* clone() const { return new mark(*this); }

  bool empty() const { return begin == end; }  ///< covers nothing

  std::size_t begin = 0;  ///< first position
  std::size_t end = 0;    ///< position behind the last; equals `begin` for an empty mark
};

/// The marks of one text, which owns them. Their order has no meaning, but that the first one that covers a
/// position is the one that counts, and that labels are counted in it.
using mark_list = boost::ptr_vector<mark>;

/// How `mark_list` copies its elements.
inline mark* new_clone(const mark& source) { return source.clone(); }

/// A caret, or a range of selected text with its caret at one end and its anchor at the other.
class SCRIBE_EXPORT selection : public mark {
 public:
  selection() = default;
  /// A caret.
  explicit selection(std::size_t at) : mark(at, at) {}
  /// What lies between an anchor and a caret, in whatever order they stand.
  selection(std::size_t anchor, std::size_t caret)
      : mark(anchor < caret ? anchor : caret, anchor < caret ? caret : anchor),
        caret_at_begin(caret < anchor) {}

  selection* clone() const override { return new selection(*this); }

  std::size_t caret() const { return caret_at_begin ? begin : end; }   ///< the end that keys move
  std::size_t anchor() const { return caret_at_begin ? end : begin; }  ///< the end that stays

  bool caret_at_begin = false;  ///< the caret stands at `begin`, the anchor at `end`; otherwise the reverse
  bool at_line_end = false;     ///< affinity: at a soft wrap the caret stands at the end of the upper line
};

/// A range that the caret cannot enter.
class SCRIBE_EXPORT solid : public mark {
 public:
  solid() = default;
  solid(std::size_t from, std::size_t to, bool with_begin) : mark(from, to), include_begin(with_begin) {}

  solid* clone() const override { return new solid(*this); }

  /// True: `begin` is a legal stop, and inner positions snap to `begin` or `end`. False: `begin` counts as
  /// inside, the legal stops are `begin` - 1 and `end`.
  bool include_begin = true;
};

/// The characters into which the text of a field was unrolled.
class SCRIBE_EXPORT field : public solid {
 public:
  field() = default;
  field(std::size_t from, std::size_t to, std::u16string code_text)
      : solid(from, to, /*with_begin=*/true), code(std::move(code_text)) {}

  field* clone() const override { return new field(*this); }

  std::u16string code;  ///< the code between the field's markers
};

/// One level of a list label.
struct index {
  std::uint64_t value = 0;     ///< the number at this level
  std::uint32_t kind = 0;      ///< 0 arabic number, 1 lower-case letters, 2 upper-case letters, 3 bullet
  std::uint64_t alphabet = 0;  ///< place in the letters dictionary for the kinds 1 and 2, else 0
};

inline bool operator==(const index& a, const index& b) {  ///< all fields are equal
  return a.value == b.value && a.kind == b.kind && a.alphabet == b.alphabet;
}

/// The label of a list item and the tab behind it. The caret may stand at the end of the paragraph before and
/// behind the label, but not right before the label.
class SCRIBE_EXPORT numbering : public solid {
 public:
  numbering() : solid(0, 0, /*with_begin=*/false) {}
  /// Throws `std::invalid_argument` without levels.
  numbering(std::size_t from, std::size_t to, std::vector<index> levels)
      : solid(from, to, /*with_begin=*/false), indices(std::move(levels)) {
    if (indices.empty()) throw std::invalid_argument("mtext::marks::numbering: indices must not be empty");
  }

  numbering* clone() const override { return new numbering(*this); }

  std::vector<index> indices;  ///< levels from the outermost to the innermost; never empty in a text
};

}  // namespace mtext::marks
