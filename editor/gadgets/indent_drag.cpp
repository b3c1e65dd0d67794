#include "editor/gadgets/indent_drag.h"

#include <algorithm>

namespace mtext {

namespace {

double within(double tick, double highest) { return std::min(std::max(tick, 0.0), highest); }

/// Moves one indent; returns the tick after its clamps.
double move_indent(format::paragraph& paragraph, indent_kind kind, double tick, double column_ticks) {
  if (kind == indent_kind::right) {
    // The field `indent`, not the place of the first line: deliberate.
    tick = std::max({tick, paragraph.left, paragraph.indent});
    paragraph.right = tick < column_ticks ? column_ticks - tick : 0;
    return tick;
  }
  tick = within(tick, column_ticks - paragraph.right);
  if (kind == indent_kind::first_line) {
    paragraph.indent = tick - paragraph.left;
  } else {
    paragraph.indent -= tick - paragraph.left;
    paragraph.left = tick;
  }
  return tick;
}

}  // namespace

std::optional<indent_kind> indent_named(std::u16string_view name) {
  if (name == u"indent") return indent_kind::first_line;
  if (name == u"left-indent") return indent_kind::left;
  if (name == u"right-indent") return indent_kind::right;
  return std::nullopt;
}

void drag_indents_to(const std::vector<format::paragraph*>& paragraphs, indent_kind kind, double tick,
                     double column_ticks) {
  for (format::paragraph* each : paragraphs) tick = move_indent(*each, kind, tick, column_ticks);
}

}  // namespace mtext
