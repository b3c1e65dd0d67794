#include "host/profile.h"

#include <charconv>

#include "od/base/unicode.h"

int IProfile::number(std::u16string_view section, std::u16string_view name, int fallback) const {
  const std::string digits = odToUtf8(text(section, name).value_or(u""));
  int value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  const bool is_number = error == std::errc() && end == digits.data() + digits.size();
  return is_number ? value : fallback;
}

void IProfile::setNumber(std::u16string_view section, std::u16string_view name, int value) {
  setText(section, name, odToUtf16(std::to_string(value)));
}

std::optional<std::u16string> HostMemoryProfile::text(std::u16string_view section,
                                                      std::u16string_view name) const {
  const auto found = m_texts.find({std::u16string(section), std::u16string(name)});
  return found == m_texts.end() ? std::nullopt : std::optional(found->second);
}

void HostMemoryProfile::setText(std::u16string_view section, std::u16string_view name,
                                std::u16string_view text) {
  m_texts.insert_or_assign({std::u16string(section), std::u16string(name)}, std::u16string(text));
}
