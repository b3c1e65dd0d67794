#pragma once

#include "od/base/OdString.h"
#include "od/cm/OdCmEntityColor.h"

/// An entity colour with the name it bears in a colour book.
class OdCmColor : public OdCmEntityColor {
 public:
  OdCmColor() = default;
  OdCmColor(const OdCmEntityColor& color, OdString bookName = {}, OdString colorName = {})
      : OdCmEntityColor(color), m_book(std::move(bookName)), m_name(std::move(colorName)) {}

  const OdString& bookName() const { return m_book; }
  const OdString& colorName() const { return m_name; }
  bool hasColorName() const { return !m_name.isEmpty(); }

  friend bool operator==(const OdCmColor&, const OdCmColor&) = default;

 private:
  OdString m_book;
  OdString m_name;
};
