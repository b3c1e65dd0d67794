#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// Lines of a text drawing, each with a line feed behind it.
inline std::string lines(std::initializer_list<std::string_view> texts, std::string_view line_end = "\n") {
  std::string bytes;
  for (const std::string_view text : texts) {
    bytes += text;
    bytes += line_end;
  }
  return bytes;
}

/// `entities`, which are whole lines, as the drawing's only section.
inline std::string drawing_of(std::string_view entities) {
  return "  0\nSECTION\n  2\nENTITIES\n" + std::string(entities) + "  0\nENDSEC\n  0\nEOF\n";
}

/// The same behind a header that names the version, such as "AC1015".
inline std::string drawing_of(std::string_view version, std::string_view entities) {
  return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n" + std::string(version) + "\n  0\nENDSEC\n" +
         drawing_of(entities);
}

/// The head of a binary drawing.
inline std::string binary_head() { return std::string("AutoCAD Binary DXF\r\n\x1A\0", 22); }

/// A group of a binary drawing with two-byte codes; `value` is complete.
inline std::string binary_group(int code, std::string_view value) {
  return std::string{static_cast<char>(code & 0xFF), static_cast<char>(code >> 8)} + std::string(value);
}

/// The same with a text, which a zero byte ends.
inline std::string binary_text(int code, std::string_view text) {
  return binary_group(code, std::string(text) + '\0');
}
