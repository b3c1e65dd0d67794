#include "editor/gadgets/column.h"

#include "editor/gadgets/handles.h"

namespace mtext {

namespace {

const OdCmEntityColor kBorder{76, 76, 94};
const OdCmEntityColor kGripBorder{96, 96, 96};

/// The corner of the grip: 1 bottom right of a column that hangs from its top left; the others mirror it.
std::uint32_t grip_corner(bool at_bottom, bool on_right) {
  const std::uint32_t corner = at_bottom ? 0 : 1;
  return on_right ? 3 - corner : corner;
}

}  // namespace

void column::create_children() {
  add_child<micui::frame>(u"border");
  add_child<grip_handle>(u"sizer");
  add_child<arrow_handle>(u"height sizer");
  add_child<edge_handle>(u"height edge");
}

void column::layout() {
  place_border();
  place_grip();
  place_height_handles();
}

void column::place_border() {
  const auto border = child<micui::frame>(u"border");
  border->width = width + 2 * scale;
  border->height = height - 2 * scale;
  border->x = -scale;
  border->y = scale;
  border->border_color = kBorder;
}

void column::place_grip() {
  const bool at_bottom = vertical == 2;
  const bool on_right = horizontal == 3;
  const auto grip = child<grip_handle>(u"sizer");
  grip->width = grip->height = 10 * scale;
  grip->x = width - 10 * scale + (on_right ? 10 * scale - width : 0);
  grip->y = height + (at_bottom ? -height - 10 * scale : 0);
  grip->border_color = kGripBorder;
  grip->corner = grip_corner(at_bottom, on_right);
  grip->cursor = grip->corner % 2 == 1 ? resizer::kNorthwestSoutheast : resizer::kNortheastSouthwest;
}

void column::place_height_handles() {
  const double raise = vertical == 2 ? -height : 0;
  const bool on_right = horizontal == 3;
  const auto arrows = child<arrow_handle>(u"height sizer");
  arrows->vertical = true;
  arrows->width = 10 * scale;
  arrows->height = 20 * scale;
  arrows->x = -5 * scale + (on_right ? width : 0);
  arrows->y = height - 10 * scale + raise;
  arrows->border_color = kHandleBorder;
  arrows->fill_color = kHandleFill;
  arrows->cursor = resizer::kNorthSouth;
  const auto edge = child<edge_handle>(u"height edge");
  edge->width = width - 10 * scale;
  edge->height = 5 * scale;
  edge->x = on_right ? 10 * scale : 0;
  edge->y = height - 2.5 * scale + raise;
  edge->cursor = resizer::kNorthSouth;
}

}  // namespace mtext
