#pragma once

#include <string>

/// The kinds of `%lu`.
enum class OdLengthUnits { scientific = 1, decimal = 2, engineering = 3, architectural = 4, fractional = 5 };

/// A length in digits, with a point for the decimal sign. `precision` counts digits behind the point (0 to
/// 8), or is the power of two of the smallest fraction. Feet are 12 units.
std::u16string odLengthDigits(double value, OdLengthUnits units, int precision);
