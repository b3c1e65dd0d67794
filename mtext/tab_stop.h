#pragma once

#include <cstdint>
#include <vector>

#include "od/base/export.h"

namespace mtext::format {

/// One tab stop of a paragraph.
struct tab_stop {
  /// Distance from the start of the line, in multiples of the text height.
  double position = 0.0;
  /// 0 left, 1 centre, 2 right, 3 decimal.
  std::uint32_t kind = 0;
  /// The separator that a decimal tab aligns; a blank for the other kinds.
  char16_t decimal_char = u' ';
};

/// True when both positions agree within 1024 machine epsilons of the larger one. Positions that are not
/// finite have to be equal exactly.
SCRIBE_EXPORT bool equal_positions(double a, double b);

/// True when both stops are of one kind at one position and, for decimal tabs, align one separator.
SCRIBE_EXPORT bool equal_tabs(const tab_stop& a, const tab_stop& b);

/// True when both lists hold equal stops in the same order.
SCRIBE_EXPORT bool equal_tabs(const std::vector<tab_stop>& a, const std::vector<tab_stop>& b);

/// Sorts the stops by position; those at equal positions stay in order.
SCRIBE_EXPORT void sort_tabs(std::vector<tab_stop>& tabs);

/// Sorts the stops, and of each run of equal neighbours keeps the first.
SCRIBE_EXPORT void clean_tabs(std::vector<tab_stop>& tabs);

}  // namespace mtext::format
