#include "editor/gadget_mouse.h"

#include "editor/drag_tip.h"
#include "editor/smart_edit.h"
#include "micui/hit_path.h"
#include "micui/resizer.h"

using micui::control_path;
using micui::path_find;

namespace {

/// A drag of a longer text draws boxes in place of letters, so that it follows the mouse.
constexpr std::size_t kMostPartsDrawnInDrags = 4999;

constexpr HostCursor kResizeCursors[] = {IDC_SIZENS, IDC_SIZEWE, IDC_SIZENWSE, IDC_SIZENESW};

bool lies_on_text_box(const control_path& path) {
  return path_find(path, u"border") || path_find(path, u"column extents");
}

}  // namespace

bool gadget_mouse::path_holds(std::u16string_view name) const { return !path_find(m_path, name).isNull(); }

/// A column's box is text, and so is what runs out of it into the bare root.
bool gadget_mouse::path_ends_in_text(const control_path& path, const OdGePoint2d& at) const {
  if (lies_on_text_box(path)) return true;
  return path.size() == 1 && !m_session.editable().text().position_at(at.x, at.y).outside;
}

bool gadget_mouse::press(const OdGePoint2d& at, bool shift, bool ctrl) {
  m_path = micui::hit_path(m_session.gadgets().refreshed(), at);
  if (path_ends_in_text(m_path, at)) {
    m_session.mouse().press(at, shift, ctrl);
    return true;
  }
  if (m_path.size() <= 1) return false;
  const bool on_indent = path_holds(u"indent") || path_holds(u"left-indent") || path_holds(u"right-indent");
  if (path_holds(u"tab switch"))
    press_tab_switch();
  else if (on_indent)
    press_indent(at);
  else if (path_holds(u"tab area"))
    press_tab_area(at);
  return true;
}

void gadget_mouse::drag(const OdGePoint2d& at) {
  if (!is_pressed()) return;
  const ExMTextEditablePtr alive(&m_session.editable());
  m_session.gadgets().refreshed();
  m_session.mouse().drag(at);
  drag_indent(at);
  drag_box(at);
  drag_corner(at);
  drag_tab(at);
  m_session.gadgets().refreshed();
  show_tip();
  m_session.repaint(redraw_request::kGadgets);
}

void gadget_mouse::release(const std::optional<OdGePoint2d>& at) {
  const ExMTextEditablePtr alive(&m_session.editable());
  const bool was_draft = end_draft();
  hide_tip();
  m_session.gadgets().root().guide.reset();
  m_session.gadgets().refreshed();
  m_session.mouse().release();
  if (at) release_tab(*at);
  m_path.clear();
  m_session.gadgets().read_settings();
  m_session.repaint(redraw_request::kGadgets | (was_draft ? redraw_request::kText : 0u));
}

void gadget_mouse::forget() {
  if (!is_pressed()) return;
  if (HostWindow* window = m_session.window()) window->releaseMouse();
  hide_tip();
  m_path.clear();
  m_session.gadgets().root().guide.reset();
  m_session.repaint(redraw_request::kGadgets | (end_draft() ? redraw_request::kText : 0u));
}

bool gadget_mouse::end_draft() {
  const bool was_draft = m_session.editable().isDraft();
  m_session.editable().setDraft(false);
  return was_draft;
}

void gadget_mouse::show_tip() const {
  const mtext::editor& root = m_session.gadgets().root();
  const auto measures = mtext::drag_measures(root, m_path, m_tab_drag ? &*m_tab_drag : nullptr,
                                             m_indent_drag ? &*m_indent_drag : nullptr);
  HostWindow* window = m_session.window();
  if (window && !measures.empty()) window->showTip(editing::drag_tip(measures, root.text_height));
}

void gadget_mouse::hide_tip() const {
  if (HostWindow* window = m_session.window()) window->hideTip();
}

bool gadget_mouse::is_over_text(const OdGePoint2d& at) const {
  return path_ends_in_text(micui::hit_path(m_session.gadgets().root(), at), at);
}

HostCursor gadget_mouse::cursor(const OdGePoint2d& at) const {
  const control_path path = micui::hit_path(m_session.gadgets().root(), at);
  const bool is_over_text = !m_session.editable().text().position_at(at.x, at.y).outside;
  if (lies_on_text_box(path) || (path.size() <= 1 && is_over_text)) return IDC_IBEAM;
  for (auto each = path.rbegin(); each != path.rend(); ++each)
    if (const auto* handle = dynamic_cast<const mtext::resizer*>(each->get()))
      return kResizeCursors[handle->cursor % std::size(kResizeCursors)];
  return IDC_ARROW;
}

void gadget_mouse::change_columns(const mtext::column_settings& columns) {
  ExMTextEditable& text = m_session.editable();
  m_session.pushUndoStep(kUndoSize);
  m_session.gadgets().root().settings = columns;
  text.setColumns(columns);
  if (text.text().parts.size() > kMostPartsDrawnInDrags) text.setDraft(true);
  close_edit();
}

void gadget_mouse::close_edit() {
  m_session.repaint(redraw_request::kGadgets | redraw_request::kText);
  m_session.editable().endOfEdit(/*relayout=*/true);
}
