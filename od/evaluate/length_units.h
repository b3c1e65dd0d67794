#pragma once

#include <string>

/// Manners of writing a length, by their number in `%lu` and in the system variable LUNITS.
enum class OdLengthUnits {
  scientific = 1,     ///< 1.55E+01
  decimal = 2,        ///< 15.50
  engineering = 3,    ///< 1'-3.50"
  architectural = 4,  ///< 1'-3 1/2"
  fractional = 5,     ///< 15 1/2
};

/// A length in digits, with a point for the decimal sign. `precision` counts digits behind the point (0 to
/// 8), or is the power of two of the smallest fraction. Feet are 12 units.
std::u16string odLengthDigits(double value, OdLengthUnits units, int precision);
