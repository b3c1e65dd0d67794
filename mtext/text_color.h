#pragma once

#include <cstdint>

#include "od/base/export.h"

namespace mtext::format {

/// The colour of a run of text: an index of the drawing's palette, or a true colour of four bytes.
/// Without a value it is the true colour 0xFF in all bytes, and its `index` has no meaning.
struct text_color {
  /// 0: colour by index. 1: true colour. Other numbers are compared and copied as true colours.
  std::uint32_t kind = 1;
  /// The number of a `\C` code; has meaning while `kind` is 0.
  std::uint16_t index = 0;
  /// Bits 24 to 31 of a `\c` code, kept for the way back.
  std::uint8_t top = 0xFF;
  std::uint8_t red = 0xFF;
  std::uint8_t green = 0xFF;
  std::uint8_t blue = 0xFF;
};

/// Colours by index are equal by index; all others by their four bytes.
SCRIBE_EXPORT bool operator==(const text_color& a, const text_color& b);

}  // namespace mtext::format
