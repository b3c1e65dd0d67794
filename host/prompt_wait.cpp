#include "host/prompt_wait.h"

#include "host/document.h"
#include "host/input_tracker.h"
#include "host/prompt.h"
#include "host/view.h"
#include "host/view_overlay.h"

namespace {

/// Trackers are drawn above everything else of their order.
constexpr int kTrackerOrder = 4;
constexpr int kTrackerPriority = 1024;

OdSmartPtr<HostRubberLine> line_for(const HostPromptRequest& request) {
  if (!request.rubber_line || !request.base_point) return {};
  return odNew<HostRubberLine>(*request.base_point);
}

}  // namespace

HostPromptWait::HostPromptWait(HostDocument& document, const HostPromptRequest& request)
    : m_document(document), m_tracker(request.tracker), m_line(line_for(request)) {
  if (!m_tracker) return;
  m_document.messages().pushFilter(*m_tracker, kTrackerLevel);
  show();
}

HostPromptWait::~HostPromptWait() {
  hide();
  if (!m_tracker) return;
  m_document.messages().popFilter(*m_tracker);
  m_tracker->ended();
}

void HostPromptWait::track(const OdGePoint3d& point) {
  m_has_cursor = true;
  if (auto* follows = dynamic_cast<HostEdPointTracker*>(m_tracker)) follows->setPoint(point);
  if (m_line) m_line->setEnd(point);
  hide();
  show();
}

void HostPromptWait::show() {
  if (m_tracker) m_shown = m_tracker->drawables();
  if (m_line && m_has_cursor) m_shown.push_back(m_line.get());
  if (m_shown.empty()) return;
  HostViewOverlay& overlay = m_document.view().overlay();
  for (OdGiDrawable* drawable : m_shown) overlay.add(*drawable, kTrackerOrder, kTrackerPriority);
  overlay.update();
}

void HostPromptWait::hide() {
  if (m_shown.empty()) return;
  HostViewOverlay& overlay = m_document.view().overlay();
  for (OdGiDrawable* drawable : m_shown) overlay.remove(*drawable);
  m_shown.clear();
  overlay.update();
}
