#include "od/evaluate/format_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

#include "od/base/printed_number.h"
#include "od/evaluate/expression.h"
#include "od/evaluate/format_options.h"
#include "od/evaluate/length_units.h"

namespace {

constexpr int kMostDigits = 8;
constexpr int kSuppressLeading = 4;
constexpr int kSuppressTrailing = 8;

/// Where the digits behind the point end; the point's place where there are none.
std::size_t endOfDigits(const std::u16string& text, std::size_t point) {
  return std::min(text.size(), text.find_first_not_of(u"0123456789", point + 1));
}

/// The sign with that code; nothing for a code that is none.
std::u16string signOf(std::u16string_view format, std::u16string_view name, std::u16string_view fallback) {
  const int code = odFormatNumber(format, name, -1);
  return code > 0 && code <= 0xFFFF ? std::u16string(1, static_cast<char16_t>(code))
                                    : std::u16string(fallback);
}

void separate(std::u16string& text, std::u16string_view format) {
  const std::size_t point = text.find(u'.');
  const std::u16string thousands = signOf(format, u"th", u"");
  const std::size_t first = text.find_first_of(u"0123456789");
  const std::size_t whole =
      first == text.npos ? first : std::min(text.size(), text.find_first_not_of(u"0123456789", first));
  if (point != text.npos) text.replace(point, 1, signOf(format, u"ds", u"."));
  if (thousands.empty() || first == text.npos) return;
  for (std::size_t at = whole; at > first + 3;) text.insert(at -= 3, thousands);
}

/// `%.3f`: its digits; -1 for another format.
int plainDigits(std::u16string_view format) {
  const bool plain = format.size() == 4 && format.starts_with(u"%.") && format[3] == u'f' &&
                     format[2] >= u'0' && format[2] <= u'9';
  return plain ? format[2] - u'0' : -1;
}

/// Zeros, signs, and what stands around the number.
std::u16string finished(std::u16string text, std::u16string_view format) {
  odSuppressZeros(text, odFormatNumber(format, u"zs", 0));
  separate(text, format);
  const auto around = odFormatOption(format, u"ps");
  if (!around) return text;
  const std::size_t comma = std::min(around->brackets.size(), around->brackets.find(u','));
  const std::u16string_view behind = around->brackets.substr(std::min(around->brackets.size(), comma + 1));
  return std::u16string(around->brackets.substr(0, comma)) + text + std::u16string(behind);
}

int precisionOf(std::u16string_view format, int fallback) {
  return std::clamp(odFormatNumber(format, u"pr", fallback), 0, kMostDigits);
}

double factorOf(std::u16string_view format) {
  const auto conversion = odFormatOption(format, u"ct");
  return conversion ? odNumberOf(conversion->brackets).value_or(1) : 1;
}

std::u16string sexagesimal(double degrees, int precision) {
  const bool negative = degrees < 0;
  const int parts = std::min(precision, 2);  // 0 degrees, 1 minutes, 2 seconds
  const double units = std::pow(60, parts);
  const double all = std::round(std::abs(degrees) * units);
  std::u16string text = negative && all > 0 ? u"-" : u"";
  text += odFormatFixed(std::floor(all / units), 0) + u"d";
  if (parts > 0) text += odFormatFixed(std::fmod(std::floor(all / (units / 60)), 60), 0) + u"'";
  if (parts > 1) text += odFormatFixed(std::fmod(all, 60), 0) + u"\"";
  return text;
}

/// A direction from north or south, towards east or west.
std::u16string bearing(double degrees, int precision) {
  const double turned = std::fmod(std::fmod(degrees, 360) + 360, 360);
  const bool north = turned <= 180;
  const bool east = turned <= 90 || turned >= 270;
  const double fromAxis = std::abs(90 - (north ? turned : turned - 180));
  return (north ? u"N " : u"S ") + sexagesimal(fromAxis, precision) + (east ? u" E" : u" W");
}

}  // namespace

std::u16string odFormatInteger(std::int64_t value) {
  std::array<char, 24> digits;
  return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

std::u16string odFormatFixed(double value, int digits) {
  std::u16string result = odPrintedNumber(value, std::chars_format::fixed, digits);
  if (result.starts_with(u'-') && result.find_first_of(u"123456789") == result.npos) result.erase(0, 1);
  return result;
}

void odSuppressZeros(std::u16string& text, int which) {
  const std::size_t point = text.find(u'.');
  if (point == text.npos) return;
  if (which & kSuppressTrailing) {
    const std::size_t end = endOfDigits(text, point);
    std::size_t kept = end;
    while (text[kept - 1] == u'0') --kept;
    if (kept == point + 1) kept = point;
    text.erase(kept, end - kept);
  }
  const std::size_t first = text.starts_with(u'-') ? 1 : 0;
  if ((which & kSuppressLeading) && text.substr(first, 2) == u"0.") text.erase(first, 1);
}

std::u16string odFormatLength(double value, std::u16string_view format, const OdFieldUnits& units) {
  if (const int digits = plainDigits(format); digits >= 0) return odFormatFixed(value, digits);
  constexpr int kOfTheDrawing = 6;
  int kind = odFormatNumber(format, u"lu", kOfTheDrawing);
  if (kind < 1 || kind > 5) kind = std::clamp(units.length, 1, 5);
  const double scaled = value * factorOf(format);
  if (!std::isfinite(scaled)) return odFormatFixed(value, 0);
  return finished(
      odLengthDigits(scaled, static_cast<OdLengthUnits>(kind), precisionOf(format, units.length_precision)),
      format);
}

std::u16string odFormatAngle(double radians, std::u16string_view format, const OdFieldUnits& units) {
  if (const int digits = plainDigits(format); digits >= 0) return odFormatFixed(radians, digits);
  constexpr int kOfTheDrawing = 5;
  int kind = odFormatNumber(format, u"au", kOfTheDrawing);
  if (kind > 4) kind = units.angle;
  const int precision = precisionOf(format, units.angle_precision);
  const double degrees = radians * 180 / std::numbers::pi;
  switch (kind) {
    case 1:
      return finished(sexagesimal(degrees, precision), format);
    case 2:
      return finished(odFormatFixed(degrees / 0.9, precision) + u"g", format);
    case 3:
      return finished(odFormatFixed(radians, precision) + u"r", format);
    case 4:
      return finished(bearing(degrees, precision), format);
    default:
      return finished(odFormatFixed(degrees, precision), format);
  }
}
