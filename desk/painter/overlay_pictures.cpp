#include "desk/painter/overlay_pictures.h"

#include <utility>

#include "desk/painter/picture_recorder.h"
#include "host/view_overlay.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdGiContextForDbDatabase.h"

void OverlayPictures::refresh(HostViewOverlay& overlay, OdDbDatabase& database,
                              const PictureFrame& frame, const OdGsView& view) {
  const bool moved = std::exchange(m_camera, Camera::of(view)) != m_camera;
  const std::vector<HostViewOverlay::Layer> layers = overlay.layers();
  const OdGiContextForDbDatabase context(&database);
  PictureRecorder recorder(frame, context);
  std::unordered_map<const OdGiDrawable*, Picture> kept;
  m_order.clear();
  for (const HostViewOverlay::Layer& layer : layers) {
    OdGiDrawable* const drawable = layer.drawable.get();
    const auto before = m_pictures.find(drawable);
    const bool stale = moved || before == m_pictures.end() || overlay.isInvalid(*drawable);
    kept[drawable] = stale ? recorder.record(*drawable, view) : std::move(before->second);
    m_order.push_back(drawable);
  }
  m_pictures = std::move(kept);
  overlay.setPainted();
}

std::vector<const Picture*> OverlayPictures::pictures() const {
  std::vector<const Picture*> result;
  for (const OdGiDrawable* drawable : m_order) result.push_back(&m_pictures.at(drawable));
  return result;
}
