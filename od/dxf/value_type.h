#pragma once

namespace dxf {

/// What the value of a group is. In a binary drawing it also says how many bytes the value takes.
enum class ValueType {
  string,   ///< text, ended by a zero byte in a binary drawing
  handle,   ///< hexadecimal digits of a handle; written as a string
  real,     ///< 8 bytes
  int16,    ///< 2 bytes, signed
  int32,    ///< 4 bytes, signed
  int64,    ///< 8 bytes, signed
  boolean,  ///< 1 byte
  binary,   ///< hexadecimal digits, or a length byte and so many bytes
  unknown   ///< outside the table: text in a text drawing, unreadable in a binary one
};

/// The type of the values of group `code`.
ValueType value_type(int code);

/// True for strings, handles and what is not known: everything that a text drawing holds as plain text.
bool is_text(ValueType type);

/// True for the integers of all widths, booleans among them.
bool is_integer(ValueType type);

}  // namespace dxf
