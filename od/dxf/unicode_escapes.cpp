#include "od/dxf/unicode_escapes.h"

#include <array>
#include <memory>
#include <optional>

#include "od/dxf/code_page.h"

namespace dxf {
namespace {

struct Escape {
  std::u16string text;
  std::size_t length = 0;  ///< units of the escape
};

int digit_of(char16_t unit) {
  if (unit >= u'0' && unit <= u'9') return unit - u'0';
  if (unit >= u'A' && unit <= u'F') return unit - u'A' + 10;
  if (unit >= u'a' && unit <= u'f') return unit - u'a' + 10;
  return -1;
}

std::optional<unsigned> four_digits(std::u16string_view text, std::size_t at) {
  if (at + 4 > text.size()) return std::nullopt;
  unsigned value = 0;
  for (std::size_t i = at; i < at + 4; ++i) {
    const int digit = digit_of(text[i]);
    if (digit < 0) return std::nullopt;
    value = value << 4 | static_cast<unsigned>(digit);
  }
  return value;
}

bool is_unit_escape(std::u16string_view text, std::size_t at) { return text.substr(at, 3) == u"\\U+"; }

// The planes in use beyond the first. As a unit of its own such a number would be a control character.
bool is_plane(unsigned value) { return (value >= 1 && value <= 3) || (value >= 14 && value <= 16); }

std::u16string pair_of(unsigned high, unsigned low) {
  return {static_cast<char16_t>(high), static_cast<char16_t>(low)};
}

// A high surrogate counts only with the low one that has to follow it as an escape of its own.
std::optional<Escape> surrogate_escapes(std::u16string_view text, std::size_t at, unsigned high) {
  if (high >= 0xDC00 || !is_unit_escape(text, at + 7 < text.size() ? at + 7 : text.size()))
    return std::nullopt;
  const auto low = four_digits(text, at + 10);
  if (!low || *low < 0xDC00 || *low > 0xDFFF) return std::nullopt;
  return Escape{pair_of(high, *low), 14};
}

std::optional<Escape> unit_escape(std::u16string_view text, std::size_t at) {
  const auto unit = four_digits(text, at + 3);
  if (!unit) return std::nullopt;
  if (*unit >= 0xD800 && *unit <= 0xDFFF) return surrogate_escapes(text, at, *unit);
  const auto rest = four_digits(text, at + 7);
  if (rest && is_plane(*unit)) {
    const unsigned character = *unit << 16 | *rest;
    return Escape{pair_of(0xD7C0 + (character >> 10), 0xDC00 + (character & 0x3FF)), 11};
  }
  return Escape{std::u16string(1, static_cast<char16_t>(*unit)), 7};
}

const CodePage& double_byte_page(int number) {
  static const std::array<std::shared_ptr<const CodePage>, 5> pages = {
      find_code_page("ansi_932"), find_code_page("ansi_950"), find_code_page("ansi_949"),
      find_code_page("johab"), find_code_page("ansi_936")};
  return *pages[static_cast<std::size_t>(number - 1)];
}

std::optional<Escape> double_byte_escape(std::u16string_view text, std::size_t at) {
  const int page = at + 3 < text.size() ? digit_of(text[at + 3]) : -1;
  const auto bytes = four_digits(text, at + 4);
  if (page < 1 || page > 5 || !bytes) return std::nullopt;
  const char16_t character = double_byte_page(page).pair(static_cast<unsigned char>(*bytes >> 8),
                                                         static_cast<unsigned char>(*bytes & 0xFF));
  if (!character) return std::nullopt;
  return Escape{std::u16string(1, character), 8};
}

std::optional<Escape> escape_at(std::u16string_view text, std::size_t at) {
  if (is_unit_escape(text, at)) return unit_escape(text, at);
  if (text.substr(at, 3) == u"\\M+") return double_byte_escape(text, at);
  return std::nullopt;
}

}  // namespace

std::u16string decode_unicode_escapes(std::u16string_view text) {
  std::u16string decoded;
  decoded.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const auto escape = text[at] == u'\\' ? escape_at(text, at) : std::nullopt;
    if (escape) {
      decoded += escape->text;
      at += escape->length;
    } else {
      decoded += text[at++];
    }
  }
  return decoded;
}

std::u16string unicode_escapes(std::u16string_view units) {
  constexpr char16_t kDigits[] = u"0123456789ABCDEF";
  std::u16string escapes;
  for (const char16_t unit : units) {
    escapes += u"\\U+";
    for (int shift = 12; shift >= 0; shift -= 4) escapes += kDigits[unit >> shift & 15];
  }
  return escapes;
}

}  // namespace dxf
