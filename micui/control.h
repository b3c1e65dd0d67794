#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "micui/color.h"
#include "micui/extents.h"
#include "micui/layout_handle.h"
#include "od/gi/OdGiDrawable.h"

namespace micui {

class control;
using control_ptr = OdSmartPtr<control>;
/// Controls from an outer one down to an inner one, each the parent of the next. It keeps its controls alive,
/// with their last place, when a later layout drops them from the tree.
using control_path = std::vector<control_ptr>;

/// A node of a tree of gadgets. All lengths are drawing units; points are in the control's own coordinates
/// unless told otherwise.
///
/// A layout writes the fields of the children, and only there is geometry computed. Drawing emits it. A
/// control knows no mouse and no key.
class control : public OdGiDrawableImpl<OdGiDrawable> {
 public:
  std::u16string name;  ///< inside the parent; several children may share one
  double x = 0;         ///< of the own origin, in the parent's coordinates
  double y = 0;         ///< the same
  double width = 0;     ///< in own coordinates; may be negative
  double height = 0;    ///< the same: what grows downwards has a negative one
  double rotation = 0;  ///< radians about the own origin
  double scale = 1.0;   ///< length of one screen pixel as of the last draw
  bool visible = true;  ///< false: neither this nor what lies below is drawn; hit testing does not ask
  OdCmEntityColor border_color = no_color();
  OdCmEntityColor fill_color = no_color();
  std::vector<control_ptr> children;  ///< in the order in which they are drawn

  // As a drawable: drawn in each view on its own, since its size depends on the view's.
  unsigned setAttributes(OdGiDrawableTraits&) override { return 0; }
  bool worldDraw(OdGiWorldDraw&) override { return false; }
  void viewportDraw(OdGiViewportDraw& draw) override;

  /// Creates the children that live as long as the control does.
  virtual void create_children() {}
  /// Writes place, size, colours and kind of the children.
  virtual void layout() {}
  /// Draws this control alone, in own coordinates.
  virtual void draw(OdGiViewportDraw&) {}
  /// Whether the rectangle from the origin to (`width`, `height`) holds a point. Edges belong to it, with a
  /// little slack; NaN is nowhere.
  virtual bool contains(const OdGePoint2d& point) const;
  /// The deepest control at a point among the descendants; null if there is none.
  virtual control_ptr child_at(const OdGePoint2d& point) const;
  /// The path from a child to the deepest control at a point. What is drawn last is hit first. Empty if no
  /// descendant is hit.
  virtual control_path path_in_children(const OdGePoint2d& point) const;
  /// The first descendant of that name: the children are looked through before what lies below them. Null if
  /// there is none.
  virtual control_ptr find(std::u16string_view wanted) const;
  /// The path from a child to the first control of that name; empty if there is none.
  virtual control_path path_of(std::u16string_view wanted) const;
  /// The own rectangle and that of every child.
  virtual extents local_extents() const;
  /// The box around `local_extents` in the parent's coordinates.
  virtual extents parent_extents() const;

  /// Appends a new `T` with its own children.
  template <typename T>
  layout_handle<T> add_child(std::u16string_view wanted) {
    const OdSmartPtr<T> made = odNew<T>();
    made->name = wanted;
    made->create_children();
    children.push_back(made);
    return {made, scale};
  }

  /// The first direct child of that name. Throws `std::runtime_error` "micui::control::layout: child not
  /// found" when there is none, or it is no `T`.
  template <typename T>
  layout_handle<T> child(std::u16string_view wanted) const {
    for (const control_ptr& each : children) {
      if (each->name != wanted) continue;
      if (T* found = dynamic_cast<T*>(each.get())) return {OdSmartPtr<T>(found), scale};
      break;
    }
    throw_child_not_found();
  }

 private:
  [[noreturn]] static void throw_child_not_found();
};

/// Draws `root` and all below it, laying out on the way down every control that sees another pixel size than
/// at its last draw.
void draw_tree(control& root, OdGiViewportDraw& draw);

}  // namespace micui
