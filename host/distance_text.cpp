#include "host/distance_text.h"

#include <cmath>

#include "host/document.h"
#include "host/exports.h"
#include "od/db/OdDbDatabase.h"
#include "od/evaluate/format_number.h"

namespace host {
namespace {

constexpr double kInchesPerFoot = 12;
/// Values of DIMZIN.
constexpr int kFeetAndInches = 3, kWithBoth = 1, kWithFeet = 2, kWithInches = 3;

/// Decimals as DIMZIN wants them.
std::u16string decimal(double value, const distance_format& format) {
  std::u16string text = odFormatFixed(value, format.precision);
  odSuppressZeros(text, format.zeros);
  return text;
}

/// A length as a whole number and a reduced fraction, rounded to the finest denominator.
struct mixed_number {
  double whole;
  int numerator;
  int denominator;

  mixed_number(double value, int precision) : denominator(1 << precision) {
    const double parts = std::round(value * denominator);
    whole = std::floor(parts / denominator);
    numerator = static_cast<int>(parts - whole * denominator);
    while (numerator != 0 && numerator % 2 == 0) {
      numerator /= 2;
      denominator /= 2;
    }
  }

  std::u16string text(const distance_format& format, bool with_zero) const {
    const std::u16string fraction = odFormatInteger(numerator) + u'/' + odFormatInteger(denominator);
    if (numerator == 0) return odFormatFixed(whole, 0);
    if (whole == 0 && !with_zero) return fraction;
    return odFormatFixed(whole, 0) + (format.typed_form ? u'-' : u' ') + fraction;
  }
};

/// Feet, and the inches that are left after rounding.
struct feet_and_inches {
  double feet;
  double inches;

  /// `step` is the smallest length that is written, in inches.
  feet_and_inches(double value, double step) {
    const double rounded = std::round(value / step) * step;
    feet = std::floor(rounded / kInchesPerFoot);
    inches = rounded - feet * kInchesPerFoot;
    if (inches < step / 2) inches = 0;
  }
};

/// Puts feet and inches together; `inches` is the text of the inches, given whether their zero is wanted.
template <class InchText>
std::u16string joined(const feet_and_inches& length, const distance_format& format, InchText inches) {
  const int zeros = format.zeros & kFeetAndInches;
  const bool with_feet = length.feet != 0 || zeros == kWithBoth || zeros == kWithFeet;
  const bool with_inches = length.inches != 0 || zeros == kWithBoth || zeros == kWithInches || !with_feet;
  std::u16string text;
  if (with_feet) text = odFormatFixed(length.feet, 0) + u'\'';
  if (!with_inches) return text;
  if (with_feet && !format.typed_form) text += u'-';
  return text + inches(with_feet || zeros == kWithBoth || zeros == kWithInches) + u'"';
}

std::u16string engineering(double value, const distance_format& format) {
  const feet_and_inches length(value, std::pow(10.0, -format.precision));
  return joined(length, format, [&](bool) { return decimal(length.inches, format); });
}

std::u16string architectural(double value, const distance_format& format) {
  const feet_and_inches length(value, std::ldexp(1.0, -format.precision));
  return joined(length, format, [&](bool with_zero) {
    return mixed_number(length.inches, format.precision).text(format, with_zero);
  });
}

std::u16string written(double value, const distance_format& format) {
  switch (format.units) {
    case length_units::scientific:
      return odLengthDigits(value, length_units::scientific, format.precision);
    case length_units::engineering:
      return engineering(value, format);
    case length_units::architectural:
      return architectural(value, format);
    case length_units::fractional:
      return mixed_number(value, format.precision).text(format, /*with_zero=*/false);
    default:
      return decimal(value, format);
  }
}

bool in_range(int value, int low, int high) { return value >= low && value <= high; }

length_units units_of(int number, length_units otherwise) {
  return in_range(number, 1, 5) ? static_cast<length_units>(number) : otherwise;
}

}  // namespace

distance_format distance_format_of(const OdDbDatabase& database) {
  distance_format format;
  format.units = units_of(database.getSysVarInt(u"LUNITS", 2), format.units);
  const int precision = database.getSysVarInt(u"LUPREC", format.precision);
  if (in_range(precision, 0, 8)) format.precision = precision;
  const int zeros = database.getSysVarInt(u"DIMZIN", format.zeros);
  if (in_range(zeros, 0, 15)) format.zeros = zeros;
  format.typed_form = database.getSysVarInt(u"UNITMODE", 0) == 1;
  return format;
}

std::u16string distance_text(double distance, const distance_format& format) {
  const std::u16string text = written(std::abs(distance), format);
  const bool is_zero = text.find_first_of(u"123456789") == text.npos;
  return distance < 0 && !is_zero ? u'-' + text : text;
}

}  // namespace host

namespace {

host::distance_format current_format() {
  HostDocument* document = host::active_document();
  return document ? host::distance_format_of(document->database()) : host::distance_format();
}

}  // namespace

std::u16string hostdbRToS(double distance, int units, int precision) {
  host::distance_format format = current_format();
  format.units = host::units_of(units, format.units);
  if (host::in_range(precision, 0, 8)) format.precision = precision;
  return host::distance_text(distance, format);
}

std::optional<double> hostdbDisToF(std::u16string_view text, int units) {
  return host::typed_distance(text, host::units_of(units, current_format().units));
}
