#include "editor/smart_edit.h"
#include "host/application.h"
#include "host/exports.h"
#include "host/turned_text.h"
#include "host/view.h"
#include "host/view_overlay.h"

editing::shown_text smart_edit::shownText() const {
  editing::shown_text shown;
  shown.frame = m_editable->frame();
  shown.height = m_editable->textHeight();
  const auto selections = m_editable->selections();
  if (!selections.empty()) m_editable->caretPoints(selections.back(), shown.caret_top, shown.caret_bottom);
  shown.extents = m_editable->textExtents();
  for (const OdGePoint2d& end : {shown.caret_top, shown.caret_bottom})
    shown.extents.addPoint({end.x, end.y, 0});
  if (m_gadgets.is_open()) shown.tools = [this](double pixel) { return m_gadgets.reach(pixel); };
  return shown;
}

void smart_edit::placeInView() {
  HostApplication* application = host::application();
  const bool turn_text = !application || host::turns_edited_text(application->profile());
  switch (m_view_policy.text_changed(m_host.view().gsView(), shownText(), turn_text)) {
    case view_policy::outcome::kLeft:
      return;
    case view_policy::outcome::kViewMoved:
      m_host.view().overlay().update();
      host::update_now();
      return;
    case view_policy::outcome::kTextFacing:
      m_host.view().overlay().invalidate(m_layers.text());
      m_host.view().overlay().update();
  }
}
