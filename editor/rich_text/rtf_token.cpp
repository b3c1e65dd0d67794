#include "editor/rich_text/rtf_token.h"

#include <algorithm>

namespace rich {

namespace {

bool is_letter(char16_t unit) { return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z'); }
bool is_digit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

int hex_digit(char16_t unit) {
  if (is_digit(unit)) return unit - u'0';
  if (unit >= u'a' && unit <= u'f') return unit - u'a' + 10;
  return unit >= u'A' && unit <= u'F' ? unit - u'A' + 10 : -1;
}

/// The number at the front of `text`, which is taken off.
std::optional<int> take_number(std::u16string_view& text) {
  const bool negative = text.starts_with(u'-');
  const std::size_t first = negative ? 1 : 0;
  std::size_t end = first;
  int value = 0;
  constexpr int kMost = 100'000;
  for (; end < text.size() && is_digit(text[end]); ++end)
    if (value < kMost) value = value * 10 + (text[end] - u'0');
  if (end == first) return {};
  text.remove_prefix(end);
  return negative ? -value : value;
}

}  // namespace

std::optional<rtf_token> rtf_tokens::next() {
  while (m_rest.starts_with(u'\r') || m_rest.starts_with(u'\n')) m_rest.remove_prefix(1);
  if (m_rest.empty()) return {};
  const char16_t unit = m_rest.front();
  m_rest.remove_prefix(1);
  switch (unit) {
    case u'{':
      return rtf_token{.kind = rtf_token::open};
    case u'}':
      return rtf_token{.kind = rtf_token::close};
    case u'\\':
      return control();
    default:
      return rtf_token{.kind = unit < 0x80 ? rtf_token::character : rtf_token::byte, .value = unit};
  }
}

/// What stands behind a backslash.
rtf_token rtf_tokens::control() {
  if (m_rest.empty()) return {.kind = rtf_token::word};
  const bool has_digits = m_rest.size() >= 3 && hex_digit(m_rest[1]) >= 0 && hex_digit(m_rest[2]) >= 0;
  if (m_rest.front() == u'\'' && has_digits) {
    const int high = hex_digit(m_rest[1]), low = hex_digit(m_rest[2]);
    m_rest.remove_prefix(3);
    return {.kind = rtf_token::byte, .value = static_cast<char16_t>(high * 16 + low)};
  }
  const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), is_letter);
  const std::size_t letters = static_cast<std::size_t>(end - m_rest.begin());
  rtf_token token{.kind = rtf_token::word, .name = m_rest.substr(0, std::max<std::size_t>(letters, 1))};
  m_rest.remove_prefix(token.name.size());
  if (letters == 0) return token;
  token.number = take_number(m_rest);
  if (m_rest.starts_with(u' ')) m_rest.remove_prefix(1);
  return token;
}

}  // namespace rich
