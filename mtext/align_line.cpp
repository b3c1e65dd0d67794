#include "mtext/align_line.h"

namespace mtext {
namespace {

/// The width of the last segment that counts for alignment.
double segment_width(const line_frame& frame, const line_state& state) {
  const double ink = ink_width(state.size);
  if (frame.info.extents_mode == extents::ink) return ink;
  if (frame.info.extents_mode == extents::ink_of_shape_fonts && starts_in_shape_font(frame, state)) {
    return frame.alignment == alignment::left ? ink + state.size.left_bearing : ink;
  }
  return state.size.advance;
}

void move_line(const line_frame& frame, const line_state& state, double by) {
  for (std::size_t i = state.first; i < state.next; ++i) frame.parts[i].x += by;
}

/// One past the last part of a range that isn't a blank; `begin` if there is none.
std::size_t end_of_ink(const geom_parts& parts, std::size_t begin, std::size_t end) {
  while (end > begin && parts[end - 1].type() == part_spaces) --end;
  return end;
}

std::size_t count_blanks(const geom_parts& parts, std::size_t begin, std::size_t end) {
  std::size_t count = 0;
  for (std::size_t i = begin; i < end; ++i) count += parts[i].type() == part_spaces;
  return count;
}

/// Spreads the last segment between its words. The last line of a text and lines that end by themselves stay.
void justify(const line_frame& frame, const line_state& state) {
  geom_parts& parts = frame.parts;
  if (state.next == parts.size() || is_terminator(parts[state.next - 1])) return;
  const std::size_t begin = segment_begin(frame, state);
  const std::size_t ink_end = end_of_ink(parts, begin, state.next);
  const std::size_t blanks = count_blanks(parts, begin, ink_end);
  if (blanks == 0) return;

  const double free = state.limit - state.stop.position - segment_width(frame, state);
  const double gap = free / static_cast<double>(blanks);
  double moved = 0;
  for (std::size_t i = begin; i < state.next; ++i) {
    parts[i].x += moved;
    if (i < ink_end && parts[i].type() == part_spaces) moved += gap;
  }
}

/// Spreads the last segment between its characters, on every line, the last one too.
void distribute(const line_frame& frame, const line_state& state) {
  geom_parts& parts = frame.parts;
  const geom_part& last = parts[state.next - 1];
  const std::size_t end = is_terminator(last) ? state.next - 1 : state.next;
  const std::size_t begin = segment_begin(frame, state);
  const std::size_t count = end_of_ink(parts, begin, end) - begin;
  if (count == 0) return;

  const double free = state.limit - state.stop.position - segment_width(frame, state);
  if (free < 0) {
    move_line(frame, state, (state.limit - state.start - ink_width(state.size)) * 0.5);
    return;
  }
  const double gap = count > 1 ? free / static_cast<double>(count - 1) : 0;
  for (std::size_t i = begin; i < end; ++i) parts[i].x += static_cast<double>(i - begin) * gap;
  if (last.type() == part_new_paragraph) parts[end].x += static_cast<double>(end - begin - 1) * gap;
}

}  // namespace

void align_line(const line_frame& frame, const line_state& state) {
  const double free = state.limit - state.start - segment_width(frame, state);
  switch (frame.alignment) {
    case alignment::centre:
      return move_line(frame, state, free * 0.5);
    case alignment::right:
      return move_line(frame, state, free);
    case alignment::justified:
      return justify(frame, state);
    case alignment::distributed:
      return distribute(frame, state);
    default:
      return;
  }
}

}  // namespace mtext
