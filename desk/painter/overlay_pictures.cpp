#include "desk/painter/overlay_pictures.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "desk/painter/picture_recorder.h"
#include "host/view_overlay.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdGiContextForDbDatabase.h"

namespace {

using Layers = std::vector<HostViewOverlay::Layer>;

/// The first layer that is out of date, or the end. Layers on it and beside it show the same state, so they
/// are drawn anew with it; those below keep their pictures.
Layers::const_iterator firstStale(const Layers& layers, const HostViewOverlay& overlay) {
  const auto invalid = std::find_if(layers.begin(), layers.end(),
                                    [&](const auto& layer) { return overlay.isInvalid(*layer.drawable); });
  if (invalid == layers.end()) return invalid;
  return std::find_if(layers.begin(), layers.end(), [&](const auto& layer) {
    return std::tie(layer.order, layer.priority) == std::tie(invalid->order, invalid->priority);
  });
}

}  // namespace

void OverlayPictures::refresh(HostViewOverlay& overlay, OdDbDatabase& database, const PictureFrame& frame,
                              const OdGsView& view) {
  const bool moved = std::exchange(m_camera, Camera::of(view)) != m_camera;
  const Layers layers = overlay.layers();
  const auto stale = firstStale(layers, overlay);
  const OdGiContextForDbDatabase context(&database);
  PictureRecorder recorder(frame, context);
  std::unordered_map<const OdGiDrawable*, Picture> kept;
  m_order.clear();
  for (auto layer = layers.begin(); layer != layers.end(); ++layer) {
    OdGiDrawable* const drawable = layer->drawable.get();
    const auto before = m_pictures.find(drawable);
    const bool anew = moved || layer >= stale || before == m_pictures.end();
    kept[drawable] = anew ? recorder.record(*drawable, view) : std::move(before->second);
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
