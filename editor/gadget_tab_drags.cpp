#include <algorithm>
#include <cmath>

#include "editor/gadget_mouse.h"
#include "editor/gadgets/tab_area.h"
#include "editor/gadgets/tabulation.h"
#include "editor/smart_edit.h"
#include "micui/hit_path.h"
#include "micui/transform.h"

// Presses and drags in the strip above a column: stops, indents, and the switch beside them.

namespace {

/// The strip that a path leads through, as it was when it was hit; null if it leads through none.
const mtext::tab_area* strip_in(const micui::control_path& path) {
  return dynamic_cast<const mtext::tab_area*>(micui::path_find(path, u"tab area").get());
}

/// A point in the coordinates of the strip.
OdGePoint2d in_strip(const micui::control_path& path, const OdGePoint2d& at) {
  return micui::path_to_local(micui::path_prefix(path, micui::path_find(path, u"tab area")), at);
}

mtext::tabulation& tab_switch_of(const mtext::editor& root) {
  return *root.child<mtext::tabulation>(u"tab switch");
}

}  // namespace

void gadget_mouse::press_tab_switch() {
  mtext::tabulation& glyph = tab_switch_of(m_session.gadgets().root());
  glyph.kind = (glyph.kind + 1) % 4;
  m_session.repaint(redraw_request::kGadgets);
}

void gadget_mouse::press_indent(const OdGePoint2d& at) {
  const mtext::tab_area* strip = strip_in(m_path);
  if (!strip) return;
  mtext::editor& root = m_session.gadgets().root();
  const double grab = in_strip(m_path, at).x;
  m_session.pushUndoStep(kUndoGadget);
  m_indent_drag = mtext::indent_drag{
      .grab = grab,
      .paragraphs = m_session.editable().touchedParagraphs(),
      .guide_stop = {
          .position = grab / root.text_height, .kind = tab_switch_of(root).kind, .decimal_char = u' '}};
  root.guide = {m_indent_drag->guide_stop, static_cast<int>(strip->column)};
  m_session.editable().layOut();
  m_session.editable().endOfEdit(/*relayout=*/true);
}

void gadget_mouse::drag_indent(const OdGePoint2d& at) {
  const auto handle = std::find_if(m_path.begin(), m_path.end(), [](const micui::control_ptr& each) {
    return mtext::indent_named(each->name).has_value();
  });
  if (handle == m_path.end() || !m_indent_drag) return;
  mtext::editor& root = m_session.gadgets().root();
  m_session.pushUndoStep(kUndoGadget);
  drop_lost_paragraphs();
  const double x = micui::path_to_local(micui::path_prefix(m_path, *handle), at).x;
  m_indent_drag->guide_stop.position = (x + m_indent_drag->grab) / root.text_height;
  // Deliberately the first column, whichever was pressed.
  root.guide = {m_indent_drag->guide_stop, 0};
  mtext::drag_indents_to(m_indent_drag->paragraphs, *mtext::indent_named((*handle)->name),
                         std::floor(m_indent_drag->guide_stop.position + 0.5),
                         root.column_width / root.text_height);
  m_session.editable().layOut();
  close_edit();
}

void gadget_mouse::press_tab_area(const OdGePoint2d& at) {
  m_path = micui::path_prefix(m_path, micui::path_find(m_path, u"tab area"));
  mtext::editor& root = m_session.gadgets().root();
  const double tick = mtext::nearest_tick(in_strip(m_path, at).x, root.text_height);
  m_session.pushUndoStep(kUndoGadget);
  root.guide.reset();
  m_tab_drag =
      mtext::begin_tab_drag(m_session.editable().touchedParagraphs(), tick, tab_switch_of(root).kind);
  if (m_tab_drag) root.guide = {m_tab_drag->stop, static_cast<int>(strip_in(m_path)->column)};
  m_session.editable().layOut();
  close_edit();
}

void gadget_mouse::drag_tab(const OdGePoint2d& at) {
  const mtext::tab_area* strip = strip_in(m_path);
  if (!strip) return;
  mtext::editor& root = m_session.gadgets().root();
  m_session.pushUndoStep(kUndoGadget);
  const OdGePoint2d point = in_strip(m_path, at);
  if (m_tab_drag && strip->contains(point)) {
    drop_lost_paragraphs();
    mtext::drag_tab_to(*m_tab_drag, mtext::nearest_tick(point.x, root.text_height));
    root.guide = {m_tab_drag->stop, static_cast<int>(strip->column)};
    m_session.editable().layOut();
  }
  close_edit();
}

void gadget_mouse::release_tab(const OdGePoint2d& at) {
  const mtext::tab_area* strip = strip_in(m_path);
  if (!strip) return;
  m_session.pushUndoStep(kUndoGadget);
  if (m_tab_drag && !strip->contains(in_strip(m_path, at))) {
    drop_lost_paragraphs();
    mtext::remove_dragged_tab(*m_tab_drag);
    m_tab_drag.reset();
    m_session.gadgets().root().guide.reset();
    m_session.editable().layOut();
  }
  close_edit();
}

/// A drag may outlive its release, and undo or a deletion in between the paragraphs it was about.
void gadget_mouse::drop_lost_paragraphs() {
  auto present = m_session.editable().allParagraphs();
  std::sort(present.begin(), present.end(), std::less<>());
  const auto is_lost = [&](const mtext::format::paragraph* each) {
    return !std::binary_search(present.begin(), present.end(), each, std::less<>());
  };
  if (m_indent_drag) std::erase_if(m_indent_drag->paragraphs, is_lost);
  if (m_tab_drag)
    std::erase_if(m_tab_drag->paragraphs, [&](const auto& held) { return is_lost(held.paragraph); });
}
