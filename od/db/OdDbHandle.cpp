#include "od/db/OdDbHandle.h"

#include <cctype>
#include <charconv>

OdString OdDbHandle::ascii() const {
  char digits[17] = {};
  *std::to_chars(digits, digits + 16, m_value, 16).ptr = 0;
  for (char& digit : digits) digit = static_cast<char>(std::toupper(static_cast<unsigned char>(digit)));
  return digits;
}
