#include "editor/smart_edit.h"
#include "host/document.h"
#include "host/exports.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "od/base/unicode.h"

namespace {

/// No mark reaches beyond the text.
bool is_sound(const mtext::geom_multitext& text) {
  for (const auto& mark : text.marks)
    if (mark.begin > mark.end || mark.end > text.parts.size()) return false;
  return true;
}

void tell(std::u16string_view sentence) {
  if (HostDocument* document = host::active_document()) document->prompt().refuse(sentence);
}

}  // namespace

void smart_edit::recover(unsigned steps_before, const std::exception& error) {
  m_key_down = false;
  forgetPress();
  m_typed.forget();
  const bool has_state_before = m_undo.undo_count() > steps_before;
  if (has_state_before || !is_sound(m_editable->text())) m_undo.take_back(*m_editable);
  // What was begun may not have been noted as an edit.
  m_editable->layOut();
  m_editable->notifyWatchers();
  repaint(redraw_request::kGadgets | redraw_request::kText);
  tell(Supp_Translate(u"This could not be done, and what was typed before it is kept:") + u" " +
       odToUtf16(error.what()));
}
