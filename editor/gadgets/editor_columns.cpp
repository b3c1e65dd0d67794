#include "editor/gadgets/column.h"
#include "editor/gadgets/editor.h"
#include "editor/gadgets/handles.h"
#include "editor/gadgets/shown_paragraph.h"
#include "editor/gadgets/tab_area.h"
#include "editor/gadgets/tab_guide_line.h"

// What each layout of the root adds afresh for every column.

namespace mtext {

namespace {

const OdCmEntityColor kExtentsBorder{64, 64, 64};
/// Black on white, white on black.
const OdCmEntityColor kGuideLine = OdCmEntityColor::fromIndex(OdCmEntityColor::kACIForeground);

constexpr std::uint32_t kManualHeights = 1;

}  // namespace

double editor::column_height(std::size_t index) const {
  if (settings.kind != kManualHeights) return settings.heights[0];
  const double set = index < settings.heights.size() ? settings.heights[index] : 0;
  const geom_column* laid_out = text_column(index);
  return set == 0 && laid_out ? laid_out->height : set;
}

int editor::handle_side(std::size_t index) const {
  if (horizontal != 2) return horizontal;
  return index < column_count / 2 ? 3 : 1;
}

double editor::top_of(double own_height) const {
  return -vertical / 2.0 * max_height - vertical / 2.0 * own_height;
}

void editor::add_column(std::size_t index) {
  const double left = (column_width + gutter) * static_cast<double>(index);
  const format::paragraph* paragraph = text ? shown_paragraph(*text, index) : nullptr;
  const double height_there = column_height(index);
  const geom_column* laid_out = text_column(index);
  if (laid_out && laid_out->height > height_there) add_column_extents(left, laid_out->height);
  {
    const auto box = add_child<column>(u"column");
    box->width = column_width;
    box->height = -height_there;
    box->x = left;
    box->y = top_of(box->height);
    box->vertical = vertical;
    box->horizontal = handle_side(index);
    box->index = index;
  }
  add_tab_area(index, left, paragraph);
  if (guide && (paragraph || guide->column == static_cast<int>(index))) add_guide_line(left, height_there);
}

void editor::add_column_extents(double left, double extent) {
  const auto box = add_child<micui::frame>(u"column extents");
  box->border_color = kExtentsBorder;
  box->width = column_width + 2 * scale;
  box->height = -extent - 2 * scale;
  box->x = left - scale;
  box->y = scale + top_of(box->height);
}

void editor::add_tab_area(std::size_t index, double left, const format::paragraph* paragraph) {
  const auto strip = add_child<tab_area>(u"tab area");
  strip->width = column_width;
  strip->height = 20 * scale;
  strip->x = left;
  strip->y = 2 * scale + strip_base();
  strip->unit = text_height;
  strip->column = index;
  strip->paragraph = paragraph;
  if (paragraph)
    strip->tabs = paragraph->tabs;
  else if (guide && guide->column == static_cast<int>(index))
    strip->tabs = {guide->stop};
}

void editor::add_guide_line(double left, double extent) {
  const auto line = add_child<tab_guide_line>(u"tab guide line");
  line->border_color = kGuideLine;
  line->width = scale / 10;
  line->height = -extent;
  line->x = left + guide->stop.position * text_height - scale / 20;
  line->y = top_of(line->height);
}

void editor::add_dot() {
  const auto dot = add_child<dot_handle>(u"dot");
  dot->border_color = kHandleBorder;
  dot->fill_color = kHandleFill;
  dot->width = dot->height = 5 * scale;
  dot->x = horizontal == 3 ? total_width - column_width - 2 * scale - 5 * scale : column_width + 2 * scale;
  dot->y = vertical == 2 ? -max_height - 12 * scale - 2.5 * scale : 12 * scale - 2.5 * scale;
  dot->cursor = resizer::kWestEast;
}

}  // namespace mtext
