#include "host/prompt_wait.h"

#include "host/document.h"
#include "host/input_tracker.h"
#include "host/view.h"
#include "host/view_overlay.h"

namespace {

/// Trackers are drawn above everything else of their order.
constexpr int kTrackerOrder = 4;
constexpr int kTrackerPriority = 1024;

}  // namespace

HostPromptWait::HostPromptWait(HostDocument& document, HostEdInputTracker* tracker)
    : m_document(document), m_tracker(tracker) {
  if (!m_tracker) return;
  m_document.messages().pushFilter(*m_tracker, kTrackerLevel);
  show();
}

HostPromptWait::~HostPromptWait() {
  if (!m_tracker) return;
  hide();
  m_document.view().overlay().update();
  m_document.messages().popFilter(*m_tracker);
  m_tracker->ended();
}

void HostPromptWait::track(const OdGePoint3d& point) {
  auto* follows = dynamic_cast<HostEdPointTracker*>(m_tracker);
  if (!follows) return;
  follows->setPoint(point);
  hide();
  show();
}

void HostPromptWait::show() {
  HostViewOverlay& overlay = m_document.view().overlay();
  m_shown = m_tracker->drawables();
  for (OdGiDrawable* drawable : m_shown) overlay.add(*drawable, kTrackerOrder, kTrackerPriority);
  overlay.update();
}

void HostPromptWait::hide() {
  for (OdGiDrawable* drawable : m_shown) m_document.view().overlay().remove(*drawable);
  m_shown.clear();
}
