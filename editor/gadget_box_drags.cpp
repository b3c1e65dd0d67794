#include "editor/gadget_mouse.h"
#include "editor/gadgets/column.h"
#include "editor/gadgets/column_drags.h"
#include "editor/smart_edit.h"
#include "micui/hit_path.h"
#include "micui/sizer.h"
#include "micui/transform.h"

// Drags of the handles that set the columns.

namespace {

/// The column that a path leads through; null if it leads through none.
const mtext::column* column_in(const micui::control_path& path) {
  return dynamic_cast<const mtext::column*>(micui::path_find(path, u"column").get());
}

}  // namespace

void gadget_mouse::drag_box(const OdGePoint2d& point) {
  const mtext::editor& root = m_session.gadgets().root();
  const OdGePoint2d at = micui::to_local(root, point);
  if (path_holds(u"width sizer")) change_columns(mtext::with_overall_width(root, at));
  if (path_holds(u"dot")) change_columns(mtext::with_column_width(root, at));
  const mtext::column* column = column_in(m_path);
  if (column && (path_holds(u"height sizer") || path_holds(u"height edge")))
    change_columns(mtext::with_column_height(root, column->index, at));
}

void gadget_mouse::drag_corner(const OdGePoint2d& point) {
  const mtext::editor& root = m_session.gadgets().root();
  const mtext::column* column = column_in(m_path);
  const auto* grip = dynamic_cast<const micui::sizer*>(micui::path_find(m_path, u"sizer").get());
  if (!column || !grip) return;
  const auto columns = mtext::with_corner(root, column->index, grip->corner, micui::to_local(root, point));
  if (columns) change_columns(*columns);
}
