#include "editor/highlight.h"

#include <cmath>
#include <optional>

#include "editor/editable.h"
#include "od/gi/OdGiGeometry.h"

namespace editing {

namespace {

constexpr double kSameRow = 1e-10;
constexpr std::uint8_t kAlpha = 120;

/// Which parts the marks of type `Mark` cover.
template <class Mark>
void set_covered(const mtext::geom_multitext& text, bool value, std::vector<bool>& covered) {
  for (const auto& mark : text.marks)
    if (dynamic_cast<const Mark*>(&mark))
      for (std::size_t at = mark.begin; at < mark.end; ++at) covered[at] = value;
}

text_box box_of(const mtext::geom_part& part) {
  return {part.x, part.y - part.size.below, part.x + part.size.advance, part.y + part.size.above};
}

std::vector<text_box> joined_boxes(const mtext::geom_multitext& text, const std::vector<bool>& counts) {
  std::vector<text_box> boxes;
  bool open = false;
  for (std::size_t at = 0; at < text.parts.size(); ++at) {
    const text_box box = box_of(text.parts[at]);
    if (counts[at] && open && std::abs(boxes.back().bottom - box.bottom) < kSameRow) {
      boxes.back().right = box.right;
      boxes.back().top = box.top;
    } else if (counts[at]) {
      boxes.push_back(box);
    }
    open = counts[at];
  }
  return boxes;
}

void draw_boxes(const std::vector<text_box>& boxes, const OdCmEntityColor& color,
                const OdGeMatrix3d& to_world, OdGiGeometry& geometry) {
  if (boxes.empty()) return;
  const OdGiSubEntityTraits before = geometry.traits();
  geometry.traits().setFillType(kOdGiFillAlways);
  geometry.traits().setTrueColor(color);
  geometry.traits().setTransparency(OdGiTransparency::fromAlpha(kAlpha));
  for (const text_box& box : boxes) {
    const auto corner = [&](double x, double y) { return to_world * OdGePoint3d{x, y, 0}; };
    geometry.polygon({corner(box.left, box.bottom), corner(box.right, box.bottom), corner(box.right, box.top),
                      corner(box.left, box.top)});
  }
  geometry.traits() = before;
}

}  // namespace

std::vector<text_box> selection_boxes(const mtext::geom_multitext& text) {
  std::vector<bool> counts(text.parts.size());
  set_covered<mtext::marks::selection>(text, true, counts);
  set_covered<mtext::marks::numbering>(text, false, counts);
  return joined_boxes(text, counts);
}

std::vector<text_box> field_boxes(const mtext::geom_multitext& text) {
  std::vector<bool> counts(text.parts.size());
  set_covered<mtext::marks::field>(text, true, counts);
  return joined_boxes(text, counts);
}

void draw_highlights(const ExMTextEditable& text, OdGiGeometry& geometry) {
  const OdGeMatrix3d to_world = text.frame().text_to_world();
  draw_boxes(selection_boxes(text.displayed()), OdCmEntityColor(0, 100, 200), to_world, geometry);
  draw_boxes(field_boxes(text.displayed()), OdCmEntityColor(255, 255, 255), to_world, geometry);
}

}  // namespace editing
