#include "editor/mouse.h"

#include "editor/line_lookup.h"
#include "editor/selection_scope.h"

using mtext::marks::selection;

void text_mouse::press(const OdGePoint2d& at, bool shift, bool ctrl) {
  m_selections = m_text.selections();
  if (shift && !m_selections.empty()) {
    move_last_caret(at);
  } else {
    if (!ctrl) m_selections.clear();
    m_selections.push_back(editing::caret_at_point(m_text.text(), at.x, at.y));
  }
  write_back();
}

void text_mouse::drag(const OdGePoint2d& at) {
  if (!is_pressed()) return;
  move_last_caret(at);
  write_back();
}

void text_mouse::release() {
  if (!is_pressed()) return;
  m_selections.clear();
  m_text.endOfEdit(/*relayout=*/false);
}

void text_mouse::move_last_caret(const OdGePoint2d& at) {
  const selection hit = editing::caret_at_point(m_text.text(), at.x, at.y);
  selection& last = m_selections.back();
  last = selection(last.anchor(), hit.caret());
  last.at_line_end = hit.at_line_end;
}

void text_mouse::write_back() {
  m_text.setSelections(m_selections);
  m_text.notifyWatchers();
}
