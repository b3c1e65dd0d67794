#include "editor/gadgets/tabulation.h"

#include "micui/frame.h"

namespace mtext {

namespace {

constexpr std::uint32_t kDecimal = 3;

/// Which part of the foot lies left of the stem's middle.
double foot_left_of_stem(std::uint32_t kind) {
  if (kind == 0) return 0;
  return kind == 2 ? 1.0 : 0.5;
}

}  // namespace

void tabulation::create_children() {
  for (const char16_t* stroke : {u"hor", u"ver", u"dash"}) add_child<micui::frame>(stroke);
}

void tabulation::layout() {
  const auto place = [this](const char16_t* wanted, double w, double h, double left, double bottom) {
    const auto stroke = child<micui::frame>(wanted);
    stroke->width = w;
    stroke->height = h;
    stroke->x = left;
    stroke->y = bottom;
    stroke->fill_color = fill_color;
    stroke->border_color = border_color;
  };
  const double foot = 0.6 * width;
  place(u"hor", foot, 0.2 * height, 0.5 * width - foot_left_of_stem(kind) * foot,
        0.2 * height - 0.1 * height);
  place(u"ver", 0.2 * width, 0.6 * height, 0.5 * width - 0.1 * width, 0.5 * height - 0.3 * height);
  if (kind == kDecimal)
    place(u"dash", 0.2 * width, 0.2 * height, 0.7 * width - 0.1 * width, 0.7 * height - 0.1 * height);
}

}  // namespace mtext
