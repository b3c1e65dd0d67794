#include "host/view_overlay.h"

#include <algorithm>
#include <tuple>

void HostViewOverlay::add(OdGiDrawable& drawable, int order, int priority) {
  remove(drawable);
  const auto later = [&](const Layer& layer) {
    return std::tie(layer.order, layer.priority) > std::tie(order, priority);
  };
  const auto place = std::find_if(m_layers.begin(), m_layers.end(), later);
  m_layers.insert(place, {OdSmartPtr<OdGiDrawable>(&drawable), order, priority});
  invalidate(drawable);
}

void HostViewOverlay::remove(OdGiDrawable& drawable) {
  const auto found = std::find_if(m_layers.begin(), m_layers.end(),
                                  [&](const Layer& layer) { return layer.drawable.get() == &drawable; });
  if (found == m_layers.end()) return;
  const OdSmartPtr<OdGiDrawable> keeps_alive = found->drawable;
  m_layers.erase(found);
  std::erase(m_invalid, &drawable);
  m_removed = true;
  invalidated();
}

void HostViewOverlay::invalidate(OdGiDrawable& drawable) {
  if (!isInvalid(drawable)) m_invalid.push_back(&drawable);
  invalidated();
}

bool HostViewOverlay::isInvalid(const OdGiDrawable& drawable) const {
  return std::find(m_invalid.begin(), m_invalid.end(), &drawable) != m_invalid.end();
}

void HostViewOverlay::setPainted() {
  m_invalid.clear();
  m_removed = false;
}
