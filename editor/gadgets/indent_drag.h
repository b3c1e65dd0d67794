#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "mtext/format_paragraph.h"

namespace mtext {

/// An indent handle that is being dragged, and the paragraphs it changes. They are the text's, and whoever
/// keeps a drag drops those that the text has lost.
struct indent_drag {
  double grab = 0;  ///< where the press was in the strip; drawing units from its left edge
  std::vector<format::paragraph*> paragraphs;
  format::tab_stop guide_stop;  ///< where the guide line is shown; in ticks
};

/// The three handles.
enum class indent_kind { first_line, left, right };

/// The handle of a gadget's name; none for another gadget.
std::optional<indent_kind> indent_named(std::u16string_view name);

/// Sets one indent of every paragraph to tick `tick`, in a column of `column_ticks` ticks.
///
/// The first line and the left margin stay between 0 and the right margin; the right margin stays right of
/// the left one and of the indent. A moved left margin leaves the first line where it is. A clamp carries
/// over to the paragraphs behind, deliberately.
void drag_indents_to(const std::vector<format::paragraph*>& paragraphs, indent_kind kind, double tick,
                     double column_ticks);

}  // namespace mtext
