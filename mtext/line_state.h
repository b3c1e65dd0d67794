#pragma once

#include <cstddef>
#include <cstdint>

#include "mtext/convert_info.h"
#include "mtext/geom_part.h"

namespace mtext {

/// What stays as it is while one line is broken and placed. Lengths are drawing units.
struct line_frame {
  geom_parts& parts;
  const convert_info& info;
  const format::paragraph& paragraph;  ///< the one that the line belongs to
  std::uint32_t alignment = 0;         ///< of that paragraph, or of the entity where it has none
  double left = 0;                     ///< left margin
  double right = 0;                    ///< right margin
  bool hanging = false;                ///< first line of a paragraph that starts to the left of its margin

  bool wraps() const { return info.columns.width != 0; }
};

/// How far a line has come. A small record, so that the check whether a word fits works on a copy, and a word
/// that doesn't fit leaves no trace.
struct line_state {
  double start = 0;     ///< X where the segment starts: the stretch behind the last tab, or the whole line
  double limit = 0;     ///< right edge: wrapping width minus the right margin
  string_metrics size;  ///< `advance` and bearings are those of the segment, the rest is the whole line's
  std::size_t segment = 0;  ///< first part of the segment; a tab that opened it stands here
  std::size_t first = 0;    ///< first part of the line
  std::size_t next = 0;     ///< first part that the line hasn't taken
  format::tab_stop stop;    ///< where the segment starts, its position in drawing units
};

/// The first part of the current segment behind the tab that opened it.
inline std::size_t segment_begin(const line_frame& frame, const line_state& state) {
  const bool behind_tab = state.segment < state.next && frame.parts[state.segment].type() == part_tab;
  return state.segment + (behind_tab ? 1 : 0);
}

/// Whether modes that go by ink see a shape font in the line: its first part decides.
inline bool starts_in_shape_font(const line_frame& frame, const line_state& state) {
  return frame.parts[state.first].part().format.is_shx;
}

/// The factor that makes drawing units of the lengths of a paragraph.
inline double length_unit(const format::paragraph& paragraph, const convert_info& info) {
  return paragraph.relative ? info.height : 1.0;
}

/// The numbers of `format::paragraph::alignment`.
namespace alignment {
inline constexpr std::uint32_t left = 1;
inline constexpr std::uint32_t centre = 2;
inline constexpr std::uint32_t right = 3;
inline constexpr std::uint32_t justified = 4;
inline constexpr std::uint32_t distributed = 5;
}  // namespace alignment

/// The alignment of a paragraph, or that of the entity where it has none.
inline std::uint32_t effective_alignment(const format::paragraph& paragraph, const convert_info& info) {
  return paragraph.alignment == 0 ? info.alignment : paragraph.alignment;
}

/// The numbers of `convert_info::extents_mode`.
namespace extents {
inline constexpr std::uint32_t ink = 1;
inline constexpr std::uint32_t ink_of_shape_fonts = 2;
}  // namespace extents

}  // namespace mtext
