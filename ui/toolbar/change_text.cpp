#include "editor/redraw.h"
#include "editor/smart_edit.h"
#include "host/window.h"
#include "ui/toolbar/CMTextEdit.h"

namespace {

constexpr double kLeastSize = 0.0001;
constexpr double kRadiansPerDegree = 0.017453292519943295;

}  // namespace

bool CMTextEdit::perform(const std::function<void()>& action) {
  if (m_refreshing) return false;
  const ExMTextEditablePtr alive(&editable());
  const unsigned steps_before = m_session.undo().undo_count();
  try {
    action();
  } catch (const std::exception& error) {
    m_session.recover(steps_before, error);
  }
  if (HostWindow* view = window()) view->takeFocus();
  return true;
}

void CMTextEdit::run(const text_change& change) {
  if (change.kind != kUndoNone) m_session.pushUndoStep(change.kind);
  change.run();
  m_session.repaint(redraw_request::kGadgets | redraw_request::kText);
  editable().endOfEdit(/*relayout=*/true);
  refresh();
}

bool CMTextEdit::change(const text_change& change) {
  return perform([this, &change] { run(change); });
}

bool CMTextEdit::applySize(float size) {
  if (size <= kLeastSize) return !m_refreshing;
  // Without a step of its own it joins the last run. That is deliberate.
  return change({[this, size] { editable().applyFormat({.height = {{size, 0U}}}); }, kUndoNone});
}

bool CMTextEdit::applyFont(const FontBox::Row& row) {
  return change({[this, &row] { editable().applyFormat(fonts::format_of(row.item)); }});
}

bool CMTextEdit::applyStyle(const StyleBox::Row& row) {
  return change({[this, &row] {
    editable().setStyle(row.item, /*keep_runs=*/false);
    editable().notifyWatchers();
  }});
}

bool CMTextEdit::applyColor(const OdCmEntityColor& color) {
  return change({[this, &color] { editable().applyFormat({.color = controls::text_color_of(color)}); }});
}

bool CMTextEdit::applyOblique(double degrees) {
  return change({[this, degrees] { editable().applyFormat({.oblique = degrees * kRadiansPerDegree}); }});
}

bool CMTextEdit::applyWidth(double factor) {
  return change({[this, factor] { editable().applyFormat({.width_factor = factor}); }});
}
