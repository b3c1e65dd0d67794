#pragma once

#include <vector>

#include "od/base/OdSmartPtr.h"
#include "od/gi/OdGiDrawable.h"

/// What is drawn above the drawing: drawables by order, within an order by priority, within a priority as
/// they came. The overlay holds a reference on each.
class HostViewOverlay {
 public:
  struct Layer {
    OdSmartPtr<OdGiDrawable> drawable;
    int order;
    int priority;
  };

  virtual ~HostViewOverlay() = default;

  /// Adds a drawable; one that is there already moves to the new place.
  void add(OdGiDrawable& drawable, int order, int priority);
  /// Removes a drawable; nothing happens if it is not there.
  void remove(OdGiDrawable& drawable);
  /// What `drawable` shows is out of date.
  void invalidate(OdGiDrawable& drawable);
  /// Has what is invalid painted soon.
  virtual void update() {}

  /// In the order in which they are to be drawn.
  const std::vector<Layer>& layers() const { return m_layers; }
  /// Something is to be painted anew: a drawable, or the place of one that was removed.
  bool isInvalid() const { return m_removed || !m_invalid.empty(); }
  bool isInvalid(const OdGiDrawable& drawable) const;
  /// All has been painted.
  void setPainted();

 protected:
  /// Something has become invalid. Called for each time.
  virtual void invalidated() {}

 private:
  std::vector<Layer> m_layers;
  std::vector<const OdGiDrawable*> m_invalid;
  bool m_removed = false;
};
