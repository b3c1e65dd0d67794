#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "od/evaluate/OdFieldSource.h"

/// Decimal digits.
std::u16string odFormatInteger(std::int64_t value);

/// Decimal digits with a point and `digits` (0 to 15) behind it, whatever the machine's language.
std::u16string odFormatFixed(double value, int digits);

/// Takes zeros out of a number in digits, by a sum of: 4 the one in front of the point, 8 those behind the
/// last other digit, and a point that is left without digits.
void odSuppressZeros(std::u16string& text, int which);

/// A length by a field's format: `%lu` units (6: those of the drawing), `%pr` precision, `%ct8[f]` factor,
/// `%zs` suppressed zeros (4 in front, 8 behind), `%ds` and `%th` codes of the decimal and the thousands
/// sign,
/// `%ps[in front,behind]`; or `%.3f`. `value` is finite.
std::u16string odFormatLength(double value, std::u16string_view format, const OdFieldUnits& units);

/// An angle in radians by `%au` units (5: those of the drawing) and what else lengths have.
std::u16string odFormatAngle(double radians, std::u16string_view format, const OdFieldUnits& units);
