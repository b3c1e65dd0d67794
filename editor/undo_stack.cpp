#include "editor/undo_stack.h"

namespace {

/// The present state; what it has in common with the newest of `neighbours` is shared.
UndoSnapshot taken(const ExMTextEditable& text, int kind, const OdArray<UndoSnapshot>& neighbours) {
  if (kind == kUndoNone) return {};
  const stored_text* neighbour = neighbours.isEmpty() ? nullptr : &neighbours.last().geometry;
  return {.width = text.frame().width,
          .height = text.frame().height,
          .text_height = text.textHeight(),
          .geometry = stored_text(text.text(), neighbour),
          .style = text.styleId(),
          .attachment = text.attachment(),
          .kind = kind};
}

void restore(const UndoSnapshot& step, ExMTextEditable& text) {
  if (step.kind == kUndoNone) return;
  if (step.style && step.style != text.styleId()) text.setStyle(step.style, /*keep_runs=*/false);
  text.setAttachment(step.attachment);
  text.setSize(step.width, step.height);
  text.setTextHeight(step.text_height, true);
  text.replaceText(step.geometry.restored());
}

/// Puts the present state aside and goes to the newest step of `from`.
bool step_between(OdArray<UndoSnapshot>& from, OdArray<UndoSnapshot>& to, ExMTextEditable& text) {
  if (from.isEmpty()) return false;
  to.append(taken(text, kUndoPresent, from));
  restore(from.last(), text);
  from.removeLast();
  return true;
}

}  // namespace

void undo_stack::push(int kind, const ExMTextEditable& text) {
  if (m_undo.isEmpty()) m_redo.clear();
  if (kind != m_run_kind && kind != kUndoNone) m_undo.append(taken(text, kind, m_undo));
  m_run_kind = kind;
}

bool undo_stack::undo(ExMTextEditable& text) {
  m_run_kind = kUndoNone;
  return step_between(m_undo, m_redo, text);
}

bool undo_stack::redo(ExMTextEditable& text) {
  m_run_kind = kUndoNone;
  return step_between(m_redo, m_undo, text);
}

void undo_stack::take_back(ExMTextEditable& text) {
  m_run_kind = kUndoNone;
  if (m_undo.isEmpty()) return;
  const UndoSnapshot step = m_undo.last();
  m_undo.removeLast();
  restore(step, text);
}

void undo_stack::start_move() {
  m_run_kind = kUndoNone;
  if (m_undo.isEmpty()) m_redo.clear();
}
