#include "editor/gadgets/editor.h"

#include <algorithm>

#include "editor/gadgets/handles.h"
#include "editor/gadgets/tabulation.h"

namespace mtext {

namespace {

const OdCmEntityColor kRulerFill{149, 164, 191};
const OdCmEntityColor kRulerBorder{96, 96, 96};
const OdCmEntityColor kSwitch{0, 0, 0};

/// The children that live across layouts: ruler, tab switch and width sizer.
constexpr std::size_t kPermanent = 3;

}  // namespace

void editor::create_children() {
  add_child<micui::frame>(u"ruler");
  add_child<tabulation>(u"tab switch");
  add_child<arrow_handle>(u"width sizer");
}

void editor::attach(int attachment) {
  vertical = attachment / 3;
  horizontal = attachment % 3 + 1;
}

const geom_column* editor::text_column(std::size_t index) const {
  return text && index < text->columns.size() ? &text->columns[index] : nullptr;
}

void editor::layout() {
  measure();
  place_ruler();
  place_tab_switch();
  place_width_sizer();
  children.resize(kPermanent);
  for (std::size_t i = 0; i < column_count; ++i) add_column(i);
  if (column_count >= 2 && horizontal != 2) add_dot();
}

void editor::measure() {
  const bool is_fixed = settings.kind == 0;
  column_count = is_fixed || !text_column(0) ? settings.heights.size() : text->columns.size();
  column_width = settings.width;
  gutter = settings.gutter;
  max_height = *std::max_element(settings.heights.begin(), settings.heights.end());
  total_width = (column_width + gutter) * static_cast<double>(column_count) - gutter;
  // From the box of the layout before: a drag deliberately measures against where the text was attached.
  anchor = {(horizontal - 1) / 2.0 * width, vertical / 2.0 * height};
  width = total_width;
  height = -max_height;
}

double editor::strip_base() const { return vertical == 2 ? -max_height - 24 * scale : 4 * scale; }

void editor::place_ruler() {
  const auto ruler = child<micui::frame>(u"ruler");
  ruler->width = total_width + 40 * scale;
  ruler->height = 24 * scale;
  ruler->x = -20 * scale + (horizontal == 3 ? 10 * scale : 0);
  ruler->y = vertical == 2 ? -max_height - 30 * scale : 4 * scale;
  ruler->fill_color = kRulerFill;
  ruler->border_color = kRulerBorder;
}

void editor::place_tab_switch() {
  const auto glyph = child<tabulation>(u"tab switch");
  // Every layout deliberately goes back to left stops, so a press always finds kind 0.
  glyph->kind = 0;
  glyph->width = glyph->height = 10 * scale;
  glyph->x = -18 * scale + (horizontal == 3 ? total_width + 30 * scale : 0);
  glyph->y = 7 * scale + strip_base();
  glyph->fill_color = glyph->border_color = kSwitch;
}

void editor::place_width_sizer() {
  const auto arrows = child<arrow_handle>(u"width sizer");
  arrows->width = 20 * scale;
  arrows->height = 10 * scale;
  arrows->x = total_width - (horizontal == 3 ? total_width + 20 * scale : 0);
  arrows->y = 7 * scale + strip_base();
  arrows->fill_color = kHandleFill;
  arrows->border_color = kHandleBorder;
  arrows->cursor = resizer::kWestEast;
}

}  // namespace mtext
