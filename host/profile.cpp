#include "host/profile.h"

#include "od/base/unicode.h"
#include "od/base/whole_number.h"

int IProfile::number(std::u16string_view section, std::u16string_view name, int fallback) const {
  return odWholeNumber<int>(odToUtf8(text(section, name).value_or(u""))).value_or(fallback);
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
