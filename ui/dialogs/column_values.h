#pragma once

#include <cstdint>

/// The column settings of a text as its dialog holds them. Lengths are in drawing units.
struct column_values {
  std::uint32_t type = 0;        ///< 0 no columns, 1 static, 2 dynamic
  std::uint8_t auto_height = 0;  ///< of dynamic columns: 1 automatic, 0 manual
  std::uint32_t count = 0;       ///< number of columns
  double height = 0;             ///< of a column
  double column_width = 0;       ///< of a column
  double gutter = 0;             ///< between two columns
  double total = 0;              ///< of all columns and gutters
  double text_height = 0;        ///< the least width, and the unit of what is too wide

  friend bool operator==(const column_values&, const column_values&) = default;  ///< field by field
};

namespace dialogs {

/// The greatest length, in text heights.
inline constexpr double kGreatestLength = 10000;

// Each takes a new value for one length and keeps the others consistent with it.

/// The total is shared out among `count` columns. Where they would be narrower than the text is high, they
/// are as wide as that, and the gutters shrink; where that is not enough, the total grows.
void set_count(column_values& values, std::uint32_t count);
/// The total is shared out anew in the same way.
void set_total(column_values& values, double total);
/// The total follows. Beyond the greatest length both take that length, and the total is no sum any more:
/// deliberate, it is what drawings were made with.
void set_column_width(column_values& values, double width);
/// The same for the gutter.
void set_gutter(column_values& values, double gutter);

}  // namespace dialogs
