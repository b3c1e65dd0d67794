#pragma once

#include <functional>

#include "host/view.h"
#include "host/view_overlay.h"
#include "od/gi/OdGsView.h"

/// The overlay of the window: what becomes invalid is painted soon.
class WindowOverlay : public HostViewOverlay {
 public:
  /// `repaint` asks the toolkit for painting; it is called often.
  explicit WindowOverlay(std::function<void()> repaint) : m_repaint(std::move(repaint)) {}

  void update() override { m_repaint(); }
  /// While layers are drawn, what they call out of date is not taken as a wish to be painted again.
  void setPainting(bool painting) { m_painting = painting; }

 protected:
  void invalidated() override {
    if (!m_painting) m_repaint();
  }

 private:
  std::function<void()> m_repaint;
  bool m_painting = false;
};

/// The view that modules know, over the camera and the overlay of the window.
class WindowView : public HostView {
 public:
  explicit WindowView(std::function<void()> repaint) : m_overlay(std::move(repaint)) {}

  WindowOverlay& overlay() override { return m_overlay; }
  OdGsView& gsView() override { return m_gs_view; }
  const OdGsView& gsView() const { return m_gs_view; }
  double unitsPerPixel() const override { return m_gs_view.pixelSize(); }

 private:
  WindowOverlay m_overlay;
  OdGsView m_gs_view;
};
