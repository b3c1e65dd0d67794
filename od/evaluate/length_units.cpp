#include "od/evaluate/length_units.h"

#include <cmath>
#include <numeric>

#include "od/base/printed_number.h"
#include "od/evaluate/format_number.h"

namespace {

constexpr double kInchesAFoot = 12;
/// Beyond, doubles have no fractions left to tell.
constexpr double kMostWholeInches = 1e12;

std::u16string scientific(double value, int precision) {
  std::u16string text = odPrintedNumber(value, std::chars_format::scientific, precision);
  for (char16_t& unit : text)
    if (unit == u'e') unit = u'E';
  return text;
}

/// Whole and fraction of a number that is not negative, to the nearest 1/2^precision.
struct Fraction {
  Fraction(double value, int precision) {
    const std::int64_t parts = std::int64_t{1} << precision;
    const auto all = static_cast<std::int64_t>(std::llround(value * static_cast<double>(parts)));
    whole = all / parts;
    const std::int64_t common = std::gcd(all % parts, parts);
    above = all % parts / common;
    below = parts / common;
  }
  std::u16string text() const {
    if (above == 0) return odFormatInteger(whole);
    const std::u16string fraction = odFormatInteger(above) + u"/" + odFormatInteger(below);
    return whole == 0 ? fraction : odFormatInteger(whole) + u" " + fraction;
  }
  std::int64_t whole, above, below;
};

std::u16string architectural(double value, int precision) {
  const Fraction all(value, precision);
  const std::int64_t feet = all.whole / static_cast<std::int64_t>(kInchesAFoot);
  Fraction inches = all;
  inches.whole -= feet * static_cast<std::int64_t>(kInchesAFoot);
  if (feet == 0) return inches.text() + u"\"";
  return odFormatInteger(feet) + u"'-" + inches.text() + u"\"";
}

std::u16string engineering(double value, int precision) {
  const double step = std::pow(10, -precision);
  const double rounded = std::round(value / step) * step;
  const double feet = std::floor(rounded / kInchesAFoot + step / 100);
  const double inches = std::max(0.0, rounded - feet * kInchesAFoot);
  const std::u16string text = odFormatFixed(inches, precision) + u"\"";
  return feet == 0 ? text : odFormatFixed(feet, 0) + u"'-" + text;
}

}  // namespace

std::u16string odLengthDigits(double value, OdLengthUnits units, int precision) {
  if (units == OdLengthUnits::scientific) return scientific(value, precision);
  if (units == OdLengthUnits::decimal || std::abs(value) > kMostWholeInches)
    return odFormatFixed(value, precision);
  const double size = std::abs(value);
  const std::u16string text = units == OdLengthUnits::engineering     ? engineering(size, precision)
                              : units == OdLengthUnits::architectural ? architectural(size, precision)
                                                                      : Fraction(size, precision).text();
  return value < 0 && text.find_first_of(u"123456789") != text.npos ? u"-" + text : text;
}
