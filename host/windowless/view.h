#pragma once

#include "host/view.h"
#include "host/view_overlay.h"
#include "od/gi/OdGsView.h"

/// A view without a window: a camera on a screen of 800 by 600 pixels, and an overlay that nobody paints.
class WindowlessView : public HostView {
 public:
  WindowlessView();
  HostViewOverlay& overlay() override { return m_overlay; }
  OdGsView& gsView() override { return m_view; }
  double unitsPerPixel() const override { return m_view.pixelSize(); }

 private:
  HostViewOverlay m_overlay;
  OdGsView m_view;
};
