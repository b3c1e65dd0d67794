#pragma once

#include <boost/ptr_container/ptr_vector.hpp>
#include <cstdint>
#include <utility>

#include "mtext/part.h"
#include "mtext/string_size_finder.h"
#include "od/base/export.h"

namespace mtext {

/// One element of a laid-out text: a character, a blank, a tab, a stack, a line end or a paragraph end.
///
/// Every concrete class is at the same time a logical part, which `part()` gives. Beware that both worlds
/// have a `clone`: through `geom_part` it copies the whole element, through the logical part only what is
/// logical.
class SCRIBE_EXPORT geom_part {
 public:
  geom_part() = default;
  geom_part(const geom_part&) = default;
  geom_part& operator=(const geom_part&) = default;
  virtual ~geom_part() = default;

  /// A heap copy of the same concrete class, owned by the caller.
  virtual geom_part* clone() const = 0;
  /// A number of `part_type`, the same as that of the logical part.
  virtual std::uint32_t type() const = 0;
  /// The logical part that this object also is.
  virtual const mtext::part& part() const = 0;
  virtual mtext::part& part() = 0;
  /// Measures anew: writes `size`, leaves `x` and `y` alone.
  virtual void update(const string_size_finder& finder) = 0;

  string_metrics size;  ///< what was measured; layout overwrites the `advance` of a tab
  double x = 0;         ///< start of the part, relative to the origin of the text
  double y = 0;         ///< baseline of the part; Y grows upwards, so text runs into the negative
};

/// The owned sequence of elements of a text.
using geom_parts = boost::ptr_vector<geom_part>;

/// How `geom_parts` copies its elements.
inline geom_part* new_clone(const geom_part& source) { return source.clone(); }

/// Makes `G` the heap copy of itself. It stands between `geom_part` and `geom_impl` so that the logical
/// part's own `clone` is left as it is.
template <class G>
class SCRIBE_EXPORT geom_clone : public geom_part {
 public:
  geom_part* clone() const override { return new G(static_cast<const G&>(*this)); }
};

/// Joins an element with the logical part `P` that it is.
template <class G, class P>
class SCRIBE_EXPORT geom_impl : public geom_clone<G>, public P {
 public:
  explicit geom_impl(P logical) : P(std::move(logical)) {}

  std::uint32_t type() const override { return P::type(); }
  const mtext::part& part() const override { return *this; }
  mtext::part& part() override { return *this; }
};

/// One character of a word.
class SCRIBE_EXPORT geom_word : public geom_impl<geom_word, string> {
 public:
  using geom_impl::geom_impl;
  void update(const string_size_finder& finder) override;
};

/// One breakable blank.
class SCRIBE_EXPORT geom_spaces : public geom_impl<geom_spaces, spaces> {
 public:
  using geom_impl::geom_impl;
  void update(const string_size_finder& finder) override;
};

/// A tab. Its `advance` is the work of layout.
class SCRIBE_EXPORT geom_tab : public geom_impl<geom_tab, tab> {
 public:
  using geom_impl::geom_impl;
  void update(const string_size_finder& finder) override;
};

/// A line end inside a paragraph. It is a fifth of its line height wide, which is what a selection shows of
/// it.
class SCRIBE_EXPORT geom_new_line : public geom_impl<geom_new_line, new_line> {
 public:
  using geom_impl::geom_impl;
  void update(const string_size_finder& finder) override;
};

/// A stacked fraction, whose digits have 0.7 of the height of the text around them.
class SCRIBE_EXPORT geom_stack : public geom_impl<geom_stack, stack> {
 public:
  using geom_impl::geom_impl;
  void update(const string_size_finder& finder) override;

  string_metrics top_size;     ///< the numerator, at its own height
  string_metrics bottom_size;  ///< the denominator, at its own height
};

/// A paragraph end, as wide as a line end. It carries the format of the paragraph that begins behind it.
class SCRIBE_EXPORT geom_new_paragraph : public geom_impl<geom_new_paragraph, new_paragraph> {
 public:
  using geom_impl::geom_impl;
  void update(const string_size_finder& finder) override;
};

/// Whether the element ends a line by itself: a line end or a paragraph end.
inline bool is_terminator(const geom_part& part) {
  return part.type() == part_new_line || part.type() == part_new_paragraph;
}

}  // namespace mtext
