#pragma once

#include <string_view>
#include <vector>

#include "editor/gadgets/editor.h"
#include "editor/gadgets/indent_drag.h"
#include "editor/gadgets/tab_drag.h"

namespace mtext {

/// What a drag is changing, with its present length in drawing units.
struct drag_measure {
  std::u16string_view name;  ///< in English, as a translation begins from it
  double length = 0;
};

/// What is dragged at the end of `path`: the handle of the press, or in the strip above a column the stop or
/// the indent of these drags, which are null while there is none. The sizes are those of the root's last
/// layout. Empty when the path leads to nothing that has a length.
std::vector<drag_measure> drag_measures(const editor& root, const micui::control_path& path,
                                        const tab_drag* tab, const indent_drag* indent);

}  // namespace mtext
