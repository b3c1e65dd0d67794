#pragma once

#include <cstdint>
#include <optional>

#include "mtext/tab_list.h"
#include "od/base/export.h"

namespace mtext::format {

/// Distance between the lines of a paragraph.
struct line_spacing {
  /// 0 no explicit spacing, 1 "At least", 2 "Exactly", 3 "Multiple".
  std::uint32_t style = 0;
  /// The distance, or for style 3 the factor.
  double value = 1.0;

  friend bool operator==(const line_spacing&, const line_spacing&) = default;
};

/// The complete format of a paragraph.
struct paragraph {
  /// True: the five lengths are multiples of the text height. False: they are drawing units, and are divided
  /// by the base height before each comparison and each output.
  bool relative = true;
  /// Indent of the first line against `left`.
  double indent = 0.0;
  double left = 0.0;
  double right = 0.0;
  /// Space before the paragraph.
  double before = 0.0;
  /// Space after the paragraph.
  double after = 0.0;
  /// 0 not set, 1 left, 2 centre, 3 right, 4 justified, 5 distributed.
  std::uint32_t alignment = 0;
  line_spacing spacing = {};
  /// Tab stops in the order in which they were given.
  tab_list tabs = {};
};

/// A subset of the fields of `paragraph`. A fresh one holds nothing.
struct paragraph_partial {
  std::optional<double> indent = {};  ///< this and the others: as in `paragraph`
  std::optional<double> left = {};
  std::optional<double> right = {};
  std::optional<double> before = {};
  std::optional<double> after = {};
  std::optional<std::uint32_t> alignment = {};
  std::optional<line_spacing> spacing = {};
  std::optional<tab_list> tabs = {};
};

/// Every field of `p` but `relative`, set. Lengths are taken as they are, not scaled.
SCRIBE_EXPORT paragraph_partial to_partial(const paragraph& p);

/// Writes the set fields of `q` into `p`, except `tabs`.
SCRIBE_EXPORT void apply_to(paragraph& p, const paragraph_partial& q);
/// Copies the seven fields `indent` to `spacing` of `b` into `a`, their emptiness included. `tabs` stay.
SCRIBE_EXPORT void apply_to(paragraph_partial& a, const paragraph_partial& b);

/// The change that leads from `a` to `b`. Lengths in drawing units are divided by `base`, the base text
/// height, first; those that differ by less than 0.0001 count as the same. Spacings and tabs are never
/// scaled.
SCRIBE_EXPORT paragraph_partial merge(double base, const paragraph& a, const paragraph& b);

/// The fields of `a` that are set and equal in `b`. `tabs` are an exception on purpose: they are those of
/// `b`, whatever `a` held.
SCRIBE_EXPORT paragraph_partial intersection(const paragraph_partial& a, const paragraph_partial& b);

}  // namespace mtext::format
