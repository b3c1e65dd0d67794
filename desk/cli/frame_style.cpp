#include "desk/cli/frame_style.h"

#include <algorithm>

#include "desk/cli/json_members.h"
#include "desk/program/file_error.h"
#include "desk/program/input_file.h"
#include "desk/text_json/text_json.h"
#include "od/base/unicode.h"

namespace {

using text_json::json;

/// Larger numbers than these are no text that anybody sees, and would leave the range of real numbers.
constexpr double kLargest = 1e9;
constexpr double kSmallest = 1e-6;
constexpr double kSteepest = 1.5;  ///< radians; at a right angle a slanted letter has no end
constexpr std::uint32_t kLargestNumber = 0xFFFFFFFF;
constexpr std::size_t kMostColumns = 1000;

void readColor(JsonMembers members, mtext::format::text_color& color) {
  color.kind = 1;
  std::uint32_t index = 0;
  if (members.count("index", index, 0xFFFF)) {
    color.kind = 0;
    color.index = static_cast<std::uint16_t>(index);
  }
  members.count("kind", color.kind, 1);
  for (const auto& [name, byte] :
       {std::pair{"top", &color.top}, {"red", &color.red}, {"green", &color.green}, {"blue", &color.blue}}) {
    std::uint32_t value = *byte;
    members.count(name, value, 0xFF);
    *byte = static_cast<std::uint8_t>(value);
  }
  members.end();
}

void readFont(JsonMembers& members, FrameStyle& style) {
  std::u16string font;
  if (members.text("font", font)) style.setFont(font);
  members.flag("is_shx", style.format.is_shx);
  if (style.format.is_shx && !odLowerAscii(style.format.font).ends_with(u".shx"))
    members.refuse("is_shx", "is true, so \"font\" must be a file that ends in .shx");
  members.count("pitch", style.format.pitch, kLargestNumber);
  members.count("charset", style.format.charset, kLargestNumber);
}

void readFormat(JsonMembers& members, FrameStyle& style) {
  double height = style.format.height;
  members.number("height", height, kSmallest, kLargest);
  style.setHeight(height);
  readFont(members, style);
  members.count("flags", style.format.flags, 15);
  members.number("width_factor", style.format.width_factor, kSmallest, kLargest);
  members.number("oblique", style.format.oblique, -kSteepest, kSteepest);
  members.number("tracking", style.format.tracking, 0, kLargest);
  members.count("align", style.format.align, 2);
  if (auto color = members.object("color")) readColor(*color, style.format.color);
}

void readColumns(JsonMembers members, mtext::column_settings& columns) {
  members.number("width", columns.width, 0, kLargest);
  members.number("gutter", columns.gutter, 0, kLargest);
  members.count("kind", columns.kind, 2);
  members.numbers("heights", columns.heights, 0, kLargest, kMostColumns);
  members.end();
}

void readSpacing(JsonMembers members, mtext::format::line_spacing& spacing) {
  members.count("style", spacing.style, 3);
  members.number("value", spacing.value, 0, kLargest);
  members.end();
}

void readFrame(JsonMembers& members, mtext::convert_info& frame) {
  members.number("width", frame.columns.width, 0, kLargest);
  if (auto columns = members.object("columns")) readColumns(*columns, frame.columns);
  members.count("alignment", frame.alignment, 5);
  members.count("vertical", frame.vertical, 2);
  if (auto spacing = members.object("spacing")) readSpacing(*spacing, frame.spacing);
  members.count("extents_mode", frame.extents_mode, 2);
}

/// Line and column of a byte, both from 1.
std::string placeIn(const std::string& text, std::size_t byte) {
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(byte, text.size()));
  const auto line = std::count(text.begin(), end, '\n') + 1;
  const auto begin = std::find(std::make_reverse_iterator(end), text.rend(), '\n').base();
  return "line " + std::to_string(line) + ", column " + std::to_string(end - begin + 1);
}

json parsed(const std::filesystem::path& file) {
  const std::string text = readInput(file, "the style");
  try {
    return json::parse(text);
  } catch (const json::parse_error& error) {
    // The byte that the parser names is the one behind the last that it took.
    const std::size_t byte = error.byte == 0 ? 0 : error.byte - 1;
    throw FileError(inputName(file), placeIn(text, byte) + " is no JSON.");
  } catch (const json::out_of_range&) {
    throw FileError(inputName(file), "it holds a number beyond all numbers.");
  }
}

}  // namespace

FrameStyle::FrameStyle() {
  format.height_kind = 0;
  frame.spacing = {1, 1.0};
  setHeight(frame.height);
}

void FrameStyle::setHeight(double height) { format.height = frame.height = height; }

void FrameStyle::setFont(std::u16string name) {
  format.is_shx = odLowerAscii(name).ends_with(u".shx");
  format.font = std::move(name);
}

FrameStyle readFrameStyle(const std::filesystem::path& file) {
  const json content = parsed(file);
  JsonMembers members(content, inputName(file));
  FrameStyle style;
  readFormat(members, style);
  readFrame(members, style.frame);
  members.end();
  return style;
}
