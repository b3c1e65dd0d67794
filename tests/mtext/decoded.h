#pragma once

#include <string>
#include <vector>

#include "mtext/decode.h"
#include "mtext/marks.h"
#include "tests/mtext/stub_finder.h"

/// Texts of height 10 for tests: a character is 6 wide (i and l 3, m and w 9), a blank 3, a line end 10/3;
/// lines are 50/3 apart.
namespace mtext {

/// A frame of text height 10 that wraps at `width`; 0 wraps nowhere.
inline convert_info frame(double width = 0) {
  convert_info info;
  info.height = 10;
  info.columns.width = width;
  return info;
}

/// Reads format codes and lays them out.
inline geom_multitext decoded(const std::u16string& codes, const convert_info& info = frame()) {
  return decode(codes, format::string(), info, stub_finder(), fields_map());
}

/// The elements of a range as characters: '>' is a tab, '/' a line end, '|' a paragraph end, '#' a stack.
inline std::string drawn(const geom_multitext& text, std::size_t first, std::size_t last) {
  std::string picture;
  for (std::size_t i = first; i < last; ++i) {
    const geom_part& each = text.parts[i];
    const bool word = each.type() == part_string;
    picture +=
        word ? static_cast<char>(static_cast<const string&>(each.part()).text[0]) : "? >/#|"[each.type()];
  }
  return picture;
}

inline std::string drawn(const geom_multitext& text) { return drawn(text, 0, text.parts.size()); }

/// Every line as characters.
inline std::vector<std::string> lines_of(const geom_multitext& text) {
  std::vector<std::string> lines;
  for (const geom_line& line : text.lines) lines.push_back(drawn(text, line.first, line.last));
  return lines;
}

/// Every column as characters.
inline std::vector<std::string> columns_of(const geom_multitext& text) {
  std::vector<std::string> columns;
  for (const geom_column& column : text.columns) columns.push_back(drawn(text, column.first, column.last));
  return columns;
}

/// The `x` of every element.
inline std::vector<double> places_of(const geom_multitext& text) {
  std::vector<double> places;
  for (const geom_part& each : text.parts) places.push_back(each.x);
  return places;
}

using texts = std::vector<std::string>;
using places = std::vector<double>;

}  // namespace mtext
