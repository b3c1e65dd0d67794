#include "micui/control.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "micui/hit_path.h"
#include "micui/pixel_size.h"
#include "micui/transform.h"

namespace micui {

namespace {

/// A model transform that holds for a block of code.
class pushed_transform {
 public:
  pushed_transform(OdGiGeometry& geometry, const OdGeMatrix3d& transform) : m_geometry(geometry) {
    geometry.pushModelTransform(transform);
  }
  ~pushed_transform() { m_geometry.popModelTransform(); }
  pushed_transform(const pushed_transform&) = delete;
  pushed_transform& operator=(const pushed_transform&) = delete;

 private:
  OdGiGeometry& m_geometry;
};

bool lies_between(double value, double a, double b) {
  return at_most(std::min(a, b), value) && at_most(value, std::max(a, b));
}

extents own_rectangle(const control& control) {
  extents box;
  box.add({0, 0});
  box.add({control.width, control.height});
  return box;
}

}  // namespace

void control::viewportDraw(OdGiViewportDraw& draw) { draw_tree(*this, draw); }

bool control::contains(const OdGePoint2d& point) const {
  for (const double number : {point.x, point.y, width, height})
    if (std::isnan(number)) return false;
  return lies_between(point.x, 0, width) && lies_between(point.y, 0, height);
}

control_ptr control::child_at(const OdGePoint2d& point) const {
  const control_path path = path_in_children(point);
  return path.empty() ? control_ptr() : path.back();
}

control_path control::path_in_children(const OdGePoint2d& point) const {
  for (auto each = children.rbegin(); each != children.rend(); ++each) {
    control_path path = hit_path(**each, point);
    if (!path.empty()) return path;
  }
  return {};
}

control_ptr control::find(std::u16string_view wanted) const {
  for (const control_ptr& each : children)
    if (each->name == wanted) return each;
  for (const control_ptr& each : children)
    if (const control_ptr found = each->find(wanted)) return found;
  return {};
}

control_path control::path_of(std::u16string_view wanted) const {
  for (const control_ptr& each : children) {
    control_path path = path_to(*each, wanted);
    if (!path.empty()) return path;
  }
  return {};
}

extents control::local_extents() const {
  extents box = own_rectangle(*this);
  for (const control_ptr& each : children) box.merge(each->parent_extents());
  return box;
}

extents control::parent_extents() const {
  const extents own = local_extents();
  extents box;
  for (const double corner_x : {own.min_x, own.max_x})
    for (const double corner_y : {own.min_y, own.max_y}) box.add(to_parent(*this, {corner_x, corner_y}));
  return box;
}

void control::throw_child_not_found() { throw std::runtime_error("micui::control::layout: child not found"); }

void draw_tree(control& root, OdGiViewportDraw& draw) {
  if (!root.visible) return;
  const double pixel = pixel_size(draw);
  if (!nearly_equal(pixel, root.scale)) {
    root.scale = pixel;
    root.layout();
  }
  const pushed_transform placed(draw.geometry(), to_parent_matrix(root));
  root.draw(draw);
  for (const control_ptr& each : root.children) draw_tree(*each, draw);
}

}  // namespace micui
