#pragma once

#include "mtext/string_size_finder.h"

/// The smallest font there is: every character 0.6 heights wide, one line 5/3 heights high.
/// A program of your own asks its font engine here, and nowhere else.
class fixed_pitch_finder : public mtext::string_size_finder {
 public:
  mtext::font_metrics font_metrics(const mtext::format::string& format) const override {
    mtext::font_metrics font;
    font.above = format.height;  // always the height that was asked for
    font.below = format.height / 3;
    font.gap = format.height / 3;
    return font;
  }

  mtext::string_metrics measure(const mtext::format::string& format,
                                std::u16string_view text) const override {
    mtext::string_metrics size;
    size.above = format.height;
    size.below = format.height / 3;
    size.gap = format.height / 3;
    size.advance = 0.6 * format.height * format.width_factor * static_cast<double>(text.size());
    if (text == u" ") size.right_bearing = size.advance;  // a blank has no ink
    return size;
  }
};
