#include "mtext/place_segment.h"

namespace mtext {

void place_vertically(const line_frame& frame, const line_state& state) {
  const double head = state.size.head;
  const double above = state.size.above;
  for (std::size_t i = state.first; i < state.next; ++i) {
    geom_part& part = frame.parts[i];
    switch (part.part().format.align) {
      case 0:
        part.y = -head - above;
        break;
      case 1:
        part.y = -head - above * 0.5 - part.size.above * 0.5;
        break;
      case 2:
        part.y = -head - part.size.above;
        break;
      default:
        break;
    }
  }
}

}  // namespace mtext
