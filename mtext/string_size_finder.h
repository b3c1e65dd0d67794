#pragma once

#include <string_view>

#include "mtext/format.h"
#include "od/base/export.h"

namespace mtext {

/// The height of a font's line, in drawing units, scaled to the height of a format.
struct font_metrics {
  double head = 0;   ///< gap that the font keeps above its nominal height (internal leading)
  double above = 0;  ///< nominal height above the baseline; equals the height of the format
  double below = 0;  ///< depth below the baseline, positive downwards
  double gap = 0;    ///< rest of the line pitch: pitch - (head + above + below)
};

/// What a piece of text measures, in drawing units. The first four fields speak of the font and are the same
/// for every text; the last five speak of this text and are zero for the empty one.
struct string_metrics {
  double head = 0;           ///< as in `font_metrics`
  double above = 0;          ///< as in `font_metrics`
  double below = 0;          ///< as in `font_metrics`
  double gap = 0;            ///< as in `font_metrics`
  double advance = 0;        ///< from the start point to the end point of the pen, along the baseline
  double left_bearing = 0;   ///< X of the left edge of the ink
  double right_bearing = 0;  ///< `advance` minus the X of the right edge of the ink
  double ink_top = 0;        ///< Y of the top of the ink above the baseline
  double ink_bottom = 0;     ///< depth of the ink under the baseline, positive downwards
};

/// `above` + `below` + `gap`: the number by which parts compete for the height of a line.
inline double line_height(const string_metrics& size) { return size.above + size.below + size.gap; }

/// `advance` without both bearings. Trailing blanks enter `advance` and `right_bearing` both, so they are no
/// ink.
inline double ink_width(const string_metrics& size) {
  return size.advance - size.left_bearing - size.right_bearing;
}

/// Measures text. All that layout knows about fonts comes through here.
///
/// The height of the format must be absolute, in drawing units. An implementation may cache by format and
/// text, but the same question must always have the same answer.
class SCRIBE_EXPORT string_size_finder {
 public:
  virtual ~string_size_finder() = default;

  /// Line geometry without any text.
  virtual mtext::font_metrics font_metrics(const format::string& format) const = 0;

  /// Measures `text`, which may be empty: then the font's values come with zeros for the rest.
  virtual string_metrics measure(const format::string& format, std::u16string_view text) const = 0;
};

}  // namespace mtext
