#include "editor/session_composer.h"

#include "editor/selection_scope.h"
#include "editor/smart_edit.h"

void session_composer::compose(const HostComposition& composition) {
  m_session.editable().compose(composition);
  m_session.repaint(redraw_request::kGadgets | redraw_request::kText);
}

std::optional<HostCaret> session_composer::caret() const {
  const ExMTextEditable& text = m_session.editable();
  const auto carets = editing::selections_of(text.displayed());
  if (carets.empty()) return std::nullopt;
  OdGePoint2d top, bottom;
  text.displayedCaret(carets.back(), top, bottom);
  return HostCaret{m_session.worldPoint(top), m_session.worldPoint(bottom)};
}
