#pragma once

#include <filesystem>

#include "mtext/convert_info.h"

/// What a text is laid out with that its codes don't tell.
struct FrameStyle {
  /// Where no code says otherwise. Its height is in drawing units, that of the frame; an empty font stands
  /// for that of the style "Standard".
  mtext::format::string format;
  mtext::convert_info frame;

  /// A text of height 2.5 that never wraps, its lines spaced as those of a new text of a drawing.
  FrameStyle();
  /// Sets the height of the format and of the frame.
  void setHeight(double height);
  /// Sets the font; a name that ends in .shx, in any case, is the file of a shape font.
  void setFont(std::u16string name);
};

/// Reads a style file: one JSON object, of which every member may be left out. Throws FileError with the line
/// or the member that is wrong.
FrameStyle readFrameStyle(const std::filesystem::path& file);
