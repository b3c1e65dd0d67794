#include "mtext/line_pitch.h"

#include <algorithm>

#include "mtext/line_state.h"

namespace mtext {
namespace {

/// Line pitch in text heights, and the part of it below the baseline.
constexpr double pitch_of_height = 1.6666666666666667;
constexpr double below_of_height = 0.6666666666666667;
constexpr double third = 0.3333333333333333;

/// The baseline lies (4f - 1) / 3 heights below the top, so that for single spacing the rise is one height.
line_pitch at_least(double value, double above, double height) {
  const double factor = std::max(above / height, value);
  return {(factor * 4.0 - 1.0) * height * third, factor * pitch_of_height * height};
}

line_pitch multiple(double value, const string_metrics& line, const convert_info& info) {
  if (info.extents_mode != extents::ink) return {line.above, value * pitch_of_height * line.above};
  const double top = std::max(line.ink_top, line.above);
  return {top, (line.above * below_of_height + top) * value};
}

}  // namespace

format::line_spacing entity_spacing(const convert_info& info) {
  if (info.spacing.style != spacing_style::none) return info.spacing;
  return {spacing_style::multiple, 1.0};
}

format::line_spacing effective_spacing(const format::paragraph& paragraph, const convert_info& info) {
  return paragraph.spacing.style != spacing_style::none ? paragraph.spacing : entity_spacing(info);
}

line_pitch pitch_of_line(const format::line_spacing& spacing, const string_metrics& line,
                         const convert_info& info) {
  switch (spacing.style) {
    case spacing_style::at_least:
      return at_least(spacing.value, line.above, info.height);
    case spacing_style::exactly:
      return {spacing.value * info.height, spacing.value * pitch_of_height * info.height};
    case spacing_style::multiple:
      return multiple(spacing.value, line, info);
    default:
      return {};
  }
}

}  // namespace mtext
