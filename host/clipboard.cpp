#include "host/clipboard.h"

namespace {

/// Private formats are numbered from here, above those that platforms fix.
constexpr unsigned kFirstPrivateFormat = 0xC000;

}  // namespace

unsigned HostMemoryClipboard::registerFormat(std::u16string_view name) {
  const auto next = kFirstPrivateFormat + static_cast<unsigned>(m_formats.size());
  return m_formats.try_emplace(std::u16string(name), next).first->second;
}

bool HostMemoryClipboard::empty() {
  m_texts.clear();
  return true;
}

bool HostMemoryClipboard::set(unsigned format, std::u16string_view text) {
  m_texts[format] = text;
  return true;
}

bool HostMemoryClipboard::has(unsigned format) const { return m_texts.contains(format); }

std::optional<std::u16string> HostMemoryClipboard::get(unsigned format) const {
  const auto found = m_texts.find(format);
  return found == m_texts.end() ? std::nullopt : std::optional(found->second);
}
