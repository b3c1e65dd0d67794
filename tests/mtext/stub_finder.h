#pragma once

#include <algorithm>
#include <string_view>

#include "mtext/string_size_finder.h"

namespace mtext {

/// Measures by rule and not by font, so that the numbers of a test can be worked out by hand. Heights h and
/// width factors w of the format: a blank and the characters i l . , are 0.3 w h wide, M W m w are 0.9 w h,
/// all others 0.6 w h. A line of text is 5/3 h high. The font "Tall" has a leading of 0.2 h and goes deeper.
class stub_finder : public string_size_finder {
 public:
  mtext::font_metrics font_metrics(const format::string& format) const override {
    const double h = format.height;
    const bool tall = format.font == u"Tall";
    mtext::font_metrics font{tall ? 0.2 * h : 0, h, tall ? 0.5 * h : h / 3, h / 3};
    if (format.is_shx) font.gap = h * 5 / 3 - (font.head + font.above + font.below);
    return font;
  }

  string_metrics measure(const format::string& format, std::u16string_view text) const override {
    const mtext::font_metrics font = font_metrics(format);
    string_metrics size{font.head, font.above, font.below, font.gap};
    if (text.empty()) return size;
    const double h = format.height;
    for (char16_t unit : text) size.advance += width_of(unit) * format.width_factor * h;
    const bool blank = std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit == u' '; });
    const bool deep =
        std::any_of(text.begin(), text.end(), [](char16_t unit) { return is_one_of(unit, u"gjpqy"); });
    size.left_bearing = text.front() == u' ' ? 0 : 0.05 * h;
    size.right_bearing = blank ? size.advance : 0.05 * h;
    size.ink_top = blank ? 0 : 0.7 * h;
    size.ink_bottom = deep ? 0.2 * h : 0;
    return size;
  }

 private:
  static bool is_one_of(char16_t unit, std::u16string_view set) { return set.find(unit) != set.npos; }

  static double width_of(char16_t unit) {
    if (is_one_of(unit, u" il.,")) return 0.3;
    return is_one_of(unit, u"MWmw") ? 0.9 : 0.6;
  }
};

}  // namespace mtext
