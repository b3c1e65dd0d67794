#pragma once

#include "mtext/convert_info.h"
#include "mtext/string_size_finder.h"

namespace mtext {

/// The vertical place of a line, in drawing units.
struct line_pitch {
  double rise = 0;   ///< from the line's top down to its baseline
  double pitch = 0;  ///< from the line's top down to the next line's top
};

/// The spacing of a paragraph, or that of the entity where it has none.
format::line_spacing effective_spacing(const format::paragraph& paragraph, const convert_info& info);

/// The spacing of the entity; single lines where it has none.
format::line_spacing entity_spacing(const convert_info& info);

/// The numbers of `format::line_spacing::style`.
namespace spacing_style {
inline constexpr std::uint32_t none = 0;
inline constexpr std::uint32_t at_least = 1;
inline constexpr std::uint32_t exactly = 2;
inline constexpr std::uint32_t multiple = 3;
}  // namespace spacing_style

/// Rise and pitch of a line of metrics `line` under `spacing`. All factors derive from the ratio of 5/3
/// between line pitch and text height.
line_pitch pitch_of_line(const format::line_spacing& spacing, const string_metrics& line,
                         const convert_info& info);

}  // namespace mtext
