#include "editor/background.h"

#include <algorithm>

#include "editor/editable.h"
#include "od/gi/OdGiGeometry.h"

namespace editing {

namespace {

/// Sums of red, green and blue below this are dark.
constexpr int kDark = 383;

OdCmEntityColor fill_color(const text_background& wanted, const OdCmEntityColor& drawing_background) {
  if (!wanted.on) return tinted(drawing_background);
  const bool is_color =
      !wanted.use_drawing_background && (wanted.color.isByColor() || wanted.color.isByACI());
  return is_color ? wanted.color : drawing_background;
}

}  // namespace

OdCmEntityColor tinted(const OdCmEntityColor& background) {
  const std::uint32_t rgb = background.trueColor();
  const int red = rgb >> 16 & 0xFF, green = rgb >> 8 & 0xFF, blue = rgb & 0xFF;
  const int target = red + green + blue < kDark ? 255 : 0;
  const auto mixed = [target](int value) { return static_cast<std::uint8_t>((target + 9 * value) / 10); };
  return {mixed(red), mixed(green), mixed(blue)};
}

std::vector<text_box> background_boxes(const ExMTextEditable& text) {
  const double margin = text.background.on ? std::max(text.background.scale - 1.0, 0.0) : 0.0;
  return column_boxes(text.displayed(), margin + kColumnMargin);
}

void draw_background(const ExMTextEditable& text, const std::vector<text_box>& boxes,
                     const OdCmEntityColor& drawing_background, OdGiGeometry& geometry) {
  const OdGiSubEntityTraits before = geometry.traits();
  geometry.traits().setFillType(kOdGiFillAlways);
  geometry.traits().setTrueColor(fill_color(text.background, drawing_background));
  const OdGeMatrix3d to_world = text.frame().text_to_world();
  for (const text_box& box : boxes) {
    const auto corner = [&](double x, double y) { return to_world * OdGePoint3d{x, y, 0}; };
    geometry.polygon({corner(box.left, box.bottom), corner(box.right, box.bottom), corner(box.right, box.top),
                      corner(box.left, box.top)});
  }
  geometry.traits() = before;
}

}  // namespace editing
