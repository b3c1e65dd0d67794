#include "od/field/field_markers.h"

#include <charconv>

namespace {

std::optional<std::uint64_t> numberOf(std::u16string_view text) {
  constexpr std::size_t kLongestNumber = 20;
  if (text.empty() || text.size() > kLongestNumber) return {};
  const std::string digits(text.begin(), text.end());
  std::uint64_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return {};
  return value;
}

}  // namespace

std::optional<OdFieldReference> odFindReference(std::u16string_view code, std::u16string_view name,
                                                std::size_t from) {
  const std::u16string opening = std::u16string(kOdMarkerBegin).append(name).append(u" ");
  for (std::size_t at = from; (at = code.find(opening, at)) != code.npos; at += opening.size()) {
    const std::size_t digits = at + opening.size();
    const std::size_t end = code.find(kOdMarkerEnd, digits);
    if (end == code.npos) return {};
    if (const auto number = numberOf(code.substr(digits, end - digits)))
      return OdFieldReference{at, end + kOdMarkerEnd.size(), *number};
  }
  return {};
}

std::u16string odFieldReference(std::u16string_view name, std::uint64_t number) {
  std::u16string text(name);
  text += u' ';
  for (const char digit : std::to_string(number)) text += static_cast<char16_t>(digit);
  return odWithMarkers(text);
}

std::u16string odWithMarkers(std::u16string_view code) {
  return std::u16string(kOdMarkerBegin).append(code).append(kOdMarkerEnd);
}
