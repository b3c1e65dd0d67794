#include "od/field/field_markers.h"

#include "od/base/unicode.h"
#include "od/base/whole_number.h"

namespace {

constexpr std::size_t kLongestNumber = 20;

std::optional<std::uint64_t> numberOf(std::u16string_view text) {
  if (text.size() > kLongestNumber) return {};
  return odWholeNumber<std::uint64_t>(odToUtf8(text));
}

}  // namespace

std::optional<OdFieldReference> odFindReference(std::u16string_view code, std::u16string_view name,
                                                std::size_t from) {
  const std::u16string opening = std::u16string(kOdMarkerBegin).append(name).append(u" ");
  for (std::size_t at = from; (at = code.find(opening, at)) != code.npos; at += opening.size()) {
    const std::size_t digits = at + opening.size();
    // No further than a number can reach, or many beginnings without an end would each search all the rest.
    const std::u16string_view near = code.substr(digits, kLongestNumber + kOdMarkerEnd.size());
    const std::size_t length = near.find(kOdMarkerEnd);
    const auto number = length == near.npos ? std::nullopt : numberOf(near.substr(0, length));
    if (number) return OdFieldReference{at, digits + length + kOdMarkerEnd.size(), *number};
  }
  return {};
}

std::vector<OdCodePiece> odSplitAtReferences(std::u16string_view code, std::u16string_view name) {
  std::vector<OdCodePiece> pieces;
  std::size_t done = 0;
  while (const auto found = odFindReference(code, name, done)) {
    pieces.push_back({code.substr(done, found->begin - done), found});
    done = found->end;
  }
  pieces.push_back({code.substr(done), {}});
  return pieces;
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

std::u16string_view odWithoutMarkers(std::u16string_view code) {
  constexpr std::size_t kBoth = kOdMarkerBegin.size() + kOdMarkerEnd.size();
  const bool has_both =
      code.size() >= kBoth && code.starts_with(kOdMarkerBegin) && code.ends_with(kOdMarkerEnd);
  return has_both ? code.substr(kOdMarkerBegin.size(), code.size() - kBoth) : code;
}
