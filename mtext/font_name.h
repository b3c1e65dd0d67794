#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "mtext/shared.h"

namespace mtext::format {

/// The name of a font. Every character of a text has one and nearly all have the same, so copies share it.
class font_name {
 public:
  font_name() = default;
  font_name(std::u16string name) : m_name(std::move(name)) {}
  font_name(const char16_t* name) : font_name(std::u16string(name)) {}

  const std::u16string& str() const { return m_name.get(); }  ///< the letters
  operator const std::u16string&() const { return str(); }
  operator std::u16string_view() const { return str(); }
  bool empty() const { return str().empty(); }

  friend bool operator==(const font_name& a, const font_name& b) {
    return a.m_name.is_shared_with(b.m_name) || a.str() == b.str();
  }
  friend std::strong_ordering operator<=>(const font_name& a, const font_name& b) {
    return a.m_name.is_shared_with(b.m_name) ? std::strong_ordering::equal : a.str() <=> b.str();
  }

 private:
  shared<std::u16string> m_name;
};

}  // namespace mtext::format
