#include "host/typed_value.h"

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "host/prompt_text.h"
#include "od/base/unicode.h"
#include "od/base/whole_number.h"

namespace host {
namespace {

std::vector<std::u16string_view> split(std::u16string_view text, char16_t mark) {
  std::vector<std::u16string_view> pieces;
  for (std::size_t at = 0;;) {
    const std::size_t end = text.find(mark, at);
    pieces.push_back(text.substr(at, end - at));
    if (end == text.npos) return pieces;
    at = end + 1;
  }
}

OdGeVector3d polar(double length, double angle) {
  return {length * std::cos(angle), length * std::sin(angle), 0};
}

std::optional<OdGeVector3d> polar_offset(std::u16string_view text) {
  const auto pieces = split(text, u'<');
  if (pieces.size() != 2) return std::nullopt;
  const auto length = typed_number(pieces[0]);
  const auto angle = typed_angle(pieces[1]);
  if (!length || !angle) return std::nullopt;
  return polar(*length, *angle);
}

std::optional<OdGeVector3d> cartesian_offset(std::u16string_view text) {
  const auto pieces = split(text, u',');
  if (pieces.size() != 2 && pieces.size() != 3) return std::nullopt;
  const auto x = typed_number(pieces[0]);
  const auto y = typed_number(pieces[1]);
  const auto z = pieces.size() == 3 ? typed_number(pieces[2]) : 0.0;
  if (!x || !y || !z) return std::nullopt;
  return OdGeVector3d{*x, *y, *z};
}

}  // namespace

std::optional<double> typed_number(std::u16string_view text) {
  std::string digits = odToUtf8(without_outer_blanks(text));
  if (digits.starts_with('+')) digits.erase(0, 1);
  if (digits.find_first_not_of("0123456789.eE+-") != digits.npos) return std::nullopt;
  const auto value = odWholeNumber<double>(digits);
  return value && std::abs(*value) <= kGreatestNumber ? value : std::nullopt;
}

std::optional<OdGePoint3d> typed_point(std::u16string_view text, const OdGePoint3d& base) {
  text = without_outer_blanks(text);
  const bool relative = text.starts_with(u'@');
  if (relative) text.remove_prefix(1);
  const auto offset = text.find(u'<') != text.npos ? polar_offset(text) : cartesian_offset(text);
  if (!offset) return std::nullopt;
  return (relative ? base : OdGePoint3d{}) + *offset;
}

std::optional<OdGePoint3d> typed_along(std::u16string_view text, const OdGePoint3d& base,
                                       const std::optional<OdGePoint3d>& cursor) {
  text = without_outer_blanks(text);
  if (const auto offset = polar_offset(text)) return base + *offset;
  const OdGeVector3d way = cursor ? *cursor - base : OdGeVector3d();
  if (!(way.length() > 0)) return std::nullopt;
  if (const auto length = typed_number(text)) return base + way * (*length / way.length());
  const auto angle = text.starts_with(u'<') ? typed_angle(text) : std::nullopt;
  if (!angle) return std::nullopt;
  return base + polar(way.length(), *angle);
}

std::optional<double> typed_angle(std::u16string_view text) {
  text = without_outer_blanks(text);
  if (text.starts_with(u'<')) text.remove_prefix(1);
  const auto degrees = typed_number(text);
  if (!degrees) return std::nullopt;
  return *degrees * std::numbers::pi / 180;
}

}  // namespace host
