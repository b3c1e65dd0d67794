#include "editor/gadgets/tab_area.h"

#include "editor/gadgets/tabulation.h"
#include "micui/frame.h"
#include "micui/mixin.h"
#include "micui/resizer.h"
#include "micui/triangle.h"

namespace mtext {

namespace {

const OdCmEntityColor kAreaFill{220, 220, 220};
const OdCmEntityColor kAreaBorder{96, 96, 96};
const OdCmEntityColor kTick{166, 166, 166};
const OdCmEntityColor kStop{20, 20, 20};
const OdCmEntityColor kIndentFill{248, 248, 248};
const OdCmEntityColor kIndentBorder{10, 10, 10};

using indent_handle = micui::mixin<micui::triangle, resizer>;

struct handle_place {
  double width, height, x, y;
  std::uint64_t direction;
};

}  // namespace

void tab_area::create_children() { add_child<micui::frame>(u"area"); }

void tab_area::layout() {
  {
    const auto area = child<micui::frame>(u"area");
    area->width = width;
    area->height = height;
    area->fill_color = kAreaFill;
    area->border_color = kAreaBorder;
  }
  children.resize(1);
  add_ticks();
  add_stops();
  if (paragraph) add_indents();
}

void tab_area::add_ticks() {
  if (!(unit > 0) || !(width / unit <= kMostTicks)) return;
  for (int i = 1; i * unit <= width; ++i) {
    const auto tick = add_child<micui::polygon>(u"notch");
    tick->border_color = kTick;
    tick->width = scale / 2;
    tick->height = (i % 4 == 0 ? 0.7 : 0.35) * height;
    tick->x = i * unit - scale / 4;
    tick->y = (height - tick->height) / 2;
  }
}

void tab_area::add_stops() {
  for (const format::tab_stop& stop : tabs) {
    const auto glyph = add_child<tabulation>(u"tab");
    glyph->fill_color = glyph->border_color = kStop;
    glyph->width = glyph->height = 0.7 * height;
    // Deliberately in ticks for every paragraph, also for one whose lengths are drawing units.
    glyph->x = unit * stop.position - glyph->width / 2;
    glyph->y = (height - glyph->height) / 2;
    glyph->kind = stop.kind;
  }
}

void tab_area::add_indents() {
  const double tick = paragraph->relative ? unit : 1;
  const double left = paragraph->left * tick;
  const double right = paragraph->right * tick;
  const double first_line = left + paragraph->indent * tick;
  const auto add = [this](const char16_t* wanted, const handle_place& place) {
    const auto handle = add_child<indent_handle>(wanted);
    handle->width = place.width;
    handle->height = place.height;
    handle->x = place.x;
    handle->y = place.y;
    handle->direction = place.direction;
    handle->fill_color = kIndentFill;
    handle->border_color = kIndentBorder;
    handle->cursor = resizer::kWestEast;
  };
  add(u"indent", {0.4 * height, 0.3 * height, first_line - 0.2 * height, 0.7 * height, 3});
  add(u"left-indent", {0.25 * height, 0.5 * height, left, 0, 0});
  add(u"right-indent", {0.25 * height, 0.5 * height, width - right - 0.25 * height, 0, 2});
}

}  // namespace mtext
