#pragma once

#include <compare>
#include <functional>
#include <string>
#include <string_view>

#include "od/base/export.h"
#include "od/base/unicode.h"

/// A text of the drawing library: UTF-16 units, held by value.
/// It is a thin coat over `std::u16string` and converts to it and from it without being asked; a `char`
/// literal is UTF-8.
class SCRIBE_EXPORT OdString {
 public:
  OdString() = default;
  OdString(std::u16string text) : m_text(std::move(text)) {}
  OdString(std::u16string_view text) : m_text(text) {}
  OdString(const char16_t* text) : m_text(text ? text : u"") {}
  OdString(const char* utf8) : m_text(odToUtf16(utf8 ? utf8 : "")) {}

  operator const std::u16string&() const { return m_text; }  ///< as `str`

  /// The units as a standard string; the reference lives as long as this object.
  const std::u16string& str() const { return m_text; }
  /// The units, ended by a zero unit.
  const char16_t* c_str() const { return m_text.c_str(); }
  /// Number of UTF-16 units.
  int getLength() const { return static_cast<int>(m_text.size()); }
  bool isEmpty() const { return m_text.empty(); }
  /// The unit at `at`, which has to be less than the length.
  char16_t getAt(int at) const { return m_text[static_cast<std::size_t>(at)]; }
  /// The text in UTF-8.
  std::string toUtf8() const { return odToUtf8(m_text); }

  /// Compares without the case of the letters A to Z: 0 when equal, else negative or positive as `compare`
  /// gives it.
  int iCompare(std::u16string_view other) const { return odLowerAscii(m_text).compare(odLowerAscii(other)); }

  OdString& operator+=(std::u16string_view tail) {  ///< appends
    m_text += tail;
    return *this;
  }

  friend OdString operator+(const OdString& a, const OdString& b) { return OdString(a.m_text + b.m_text); }
  friend bool operator==(const OdString& a, const OdString& b) { return a.m_text == b.m_text; }
  friend std::strong_ordering operator<=>(const OdString& a, const OdString& b) {
    return a.m_text <=> b.m_text;
  }

 private:
  std::u16string m_text;
};

template <>
struct std::hash<OdString> {                                     ///< equal texts have equal hashes
  std::size_t operator()(const OdString& text) const noexcept {  ///< of the units
    return std::hash<std::u16string>{}(text.str());
  }
};
