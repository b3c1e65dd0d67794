#pragma once

#include <optional>

#include "editor/gadgets/indent_drag.h"
#include "editor/gadgets/tab_drag.h"
#include "host/window.h"
#include "micui/control.h"
#include "mtext/convert_info.h"

class smart_edit;

/// The left button on the text and the gadgets of a multi-line session, in text coordinates.
///
/// A press builds the path of gadgets under it and keeps it until the release. The moves in between look for
/// names in that path, so a handle is dragged by the object of the press even where layouts have put another
/// in its place.
class gadget_mouse {
 public:
  /// The session owns it.
  explicit gadget_mouse(smart_edit& session) : m_session(session) {}

  /// False: the press lies outside everything, and ends the session.
  bool press(const OdGePoint2d& at, bool shift, bool ctrl);
  void drag(const OdGePoint2d& at);
  /// Without a point the button was released where the view shows none of the text's plane.
  void release(const std::optional<OdGePoint2d>& at);
  /// A key, a menu or a failure ends the press: the button may be let go where nobody hears of it, and moves
  /// are no drag any more. What was dragged stays as it is.
  void forget();
  /// Whether a press is being held.
  bool is_pressed() const { return !m_path.empty(); }
  /// Whether a press at a point would go into the text.
  bool is_over_text(const OdGePoint2d& at) const;
  /// The cursor to show over a point.
  HostCursor cursor(const OdGePoint2d& at) const;

 private:
  void press_tab_switch();
  void press_indent(const OdGePoint2d& at);
  void press_tab_area(const OdGePoint2d& at);
  void drag_indent(const OdGePoint2d& at);
  void drag_box(const OdGePoint2d& at);
  void drag_corner(const OdGePoint2d& at);
  void drag_tab(const OdGePoint2d& at);
  void release_tab(const OdGePoint2d& at);
  void change_columns(const mtext::column_settings& columns);
  void close_edit();
  void show_tip() const;
  void hide_tip() const;
  /// Draws letters again where a drag had boxes in their place. True if there were any.
  bool end_draft();
  void drop_lost_paragraphs();
  bool path_holds(std::u16string_view name) const;
  bool path_ends_in_text(const micui::control_path& path, const OdGePoint2d& at) const;

  smart_edit& m_session;
  micui::control_path m_path;
  /// These two outlive a release; a press drops the one that it is about to set.
  std::optional<mtext::tab_drag> m_tab_drag;
  std::optional<mtext::indent_drag> m_indent_drag;
};
