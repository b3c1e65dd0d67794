#pragma once

#include <optional>
#include <vector>

#include "mtext/format_paragraph.h"

namespace mtext {

/// A tab stop that is being dragged through every paragraph that the selections touch. The paragraphs are the
/// text's, and whoever keeps a drag drops those that the text has lost.
struct tab_drag {
  /// A paragraph with its stops as they are without the dragged one.
  struct held {
    format::paragraph* paragraph;
    std::vector<format::tab_stop> other_tabs;
  };

  format::tab_stop stop;
  std::vector<held> paragraphs;
};

/// The tick nearest to a length from the left edge; half way goes up.
double nearest_tick(double length, double text_height);

/// A press at tick `tick` takes the stop there out of every paragraph and puts the one that is dragged back:
/// the first paragraph's, where it stands and of its kind, or a new one of kind `new_kind` at the tick. No
/// drag without paragraphs.
std::optional<tab_drag> begin_tab_drag(const std::vector<format::paragraph*>& paragraphs, double tick,
                                       std::uint32_t new_kind);

/// Puts the dragged stop at a tick, in every paragraph.
void drag_tab_to(tab_drag& drag, double tick);

/// Gives every paragraph its other stops back: the dragged one is off the ruler.
void remove_dragged_tab(const tab_drag& drag);

}  // namespace mtext
