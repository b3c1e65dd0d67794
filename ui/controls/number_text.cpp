#include "ui/controls/number_text.h"

#include <locale.h>

#include <cmath>
#include <cstdlib>

#include "od/base/printed_number.h"
#include "od/base/unicode.h"

namespace controls {
namespace {

/// The locale whose numbers have a point, whatever the user's language writes.
locale_t point_locale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return locale;
}

}  // namespace

std::optional<double> whole_number(std::u16string_view text) {
  const std::string narrow = odToUtf8(text);
  char* end = nullptr;
  const double value = strtod_l(narrow.c_str(), &end, point_locale());
  if (end != narrow.data() + narrow.size() || std::isnan(value)) return {};
  return value;
}

float leading_number(std::u16string_view text) {
  const auto value = static_cast<float>(strtod_l(odToUtf8(text).c_str(), nullptr, point_locale()));
  return std::isfinite(value) ? value : 0;
}

std::u16string fixed_text(double value, int digits) {
  return odPrintedNumber(value, std::chars_format::fixed, digits);
}

std::u16string short_text(double value, int digits) {
  return odPrintedNumber(value, std::chars_format::general, digits);
}

}  // namespace controls
