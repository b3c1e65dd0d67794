#include "mtext/format_string.h"

#include <cmath>

namespace mtext::format {

bool operator==(const string& a, const string& b) {
  return std::abs(a.height - b.height) < tolerance && a.height_kind == b.height_kind && a.font == b.font &&
         a.pitch == b.pitch && a.flags == b.flags && a.is_shx == b.is_shx && a.charset == b.charset &&
         a.color == b.color && a.width_factor == b.width_factor && a.oblique == b.oblique &&
         a.tracking == b.tracking && a.align == b.align;
}

string_partial to_partial(const string& s) {
  return {.height = std::pair(s.height, s.height_kind),
          .font = s.font,
          .pitch = s.pitch,
          .charset = s.charset,
          .is_shx = s.is_shx,
          .bold = (s.flags & flag_bold) != 0,
          .italic = (s.flags & flag_italic) != 0,
          .underline = (s.flags & flag_underline) != 0,
          .overline = (s.flags & flag_overline) != 0,
          .color = s.color,
          .width_factor = s.width_factor,
          .oblique = s.oblique,
          .tracking = s.tracking,
          .align = s.align};
}

bool is_default_format(const string_partial& p) {
  using boost::logic::indeterminate;
  return !p.font && !p.charset && !p.pitch && indeterminate(p.bold) && indeterminate(p.italic);
}

}  // namespace mtext::format
