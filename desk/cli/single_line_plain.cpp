#include "desk/cli/single_line_plain.h"

#include <optional>

#include "od/fonts/OdCharMapper.h"

namespace {

constexpr int kCodePage = 1252;

std::optional<int> number(std::u16string_view digits, int base) {
  int value = 0;
  for (char16_t digit : digits) {
    const int lower = digit | 0x20;
    const int place = digit >= u'0' && digit <= u'9' ? digit - u'0'
                      : lower >= 'a' && lower <= 'f' ? lower - 'a' + 10
                                                     : base;
    if (place >= base) return std::nullopt;
    value = value * base + place;
  }
  return value;
}

/// Reads a `%%` sequence at the front of `text`; the number of its units, 0 if it is none.
std::size_t takePercent(std::u16string_view text, std::u16string& plain) {
  if (text.size() < 3 || text.substr(0, 2) != u"%%") return 0;
  switch (text[2] | 0x20) {
    case 'd':
      plain += u'\u00B0';
      return 3;
    case 'p':
      plain += u'\u00B1';
      return 3;
    case 'c':
      plain += u'\u2300';
      return 3;
    case 'u':
    case 'o':
    case 'k':
      return 3;
    default:
      break;
  }
  if (text[2] == u'%') {
    plain += u'%';
    return 3;
  }
  if (text.size() < 5) return 0;
  const std::optional<int> code = number(text.substr(2, 3), 10);
  if (!code || *code > 255) return 0;
  const char byte = static_cast<char>(*code);
  const char32_t character = OdCharMapper::toUnicode({&byte, 1}, kCodePage);
  if (character) plain += static_cast<char16_t>(character);
  return 5;
}

std::size_t takeUnicode(std::u16string_view text, std::u16string& plain) {
  constexpr std::size_t kLength = 7;
  if (text.size() < kLength || (text.substr(0, 3) != u"\\U+" && text.substr(0, 3) != u"\\u+")) return 0;
  const std::optional<int> code = number(text.substr(3, 4), 16);
  if (!code) return 0;
  plain += static_cast<char16_t>(*code);
  return kLength;
}

}  // namespace

std::u16string singleLinePlain(std::u16string_view text) {
  std::u16string plain;
  while (!text.empty()) {
    std::size_t taken = takePercent(text, plain);
    if (taken == 0) taken = takeUnicode(text, plain);
    if (taken == 0) plain += text[taken++];
    text.remove_prefix(taken);
  }
  return plain;
}
