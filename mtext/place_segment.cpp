#include "mtext/place_segment.h"

namespace mtext {
namespace {

/// Whether segments start with the ink of their first part, and not with its bearing.
bool starts_with_ink(const line_frame& frame, const line_state& state) {
  if (frame.info.extents_mode == extents::ink) return true;
  return frame.info.extents_mode == extents::ink_of_shape_fonts && starts_in_shape_font(frame, state) &&
         frame.alignment != alignment::left;
}

/// Parts that stand at the end of a segment without taking room in it.
bool takes_no_room(const geom_part& part) { return is_terminator(part) || part.type() == part_tab; }

}  // namespace

double place_segment(const line_frame& frame, const line_state& state) {
  geom_parts& parts = frame.parts;
  const std::size_t begin = segment_begin(frame, state);
  const std::size_t end = state.next;
  double x = state.stop.position;
  if (begin == end) return x;

  const std::size_t stop_at = takes_no_room(parts[end - 1]) ? end - 1 : end;
  if (starts_with_ink(frame, state)) x -= parts[begin].size.left_bearing;
  for (std::size_t i = begin; i < stop_at; ++i) {
    if (parts[i].type() == part_tab) continue;
    parts[i].x = x;
    x += parts[i].size.advance;
  }
  if (stop_at != end && parts[stop_at].type() != part_tab) parts[stop_at].x = x;
  return x;
}

}  // namespace mtext
