#pragma once

class HostViewOverlay;
class OdGsView;

/// The drawing view of a document.
class HostView {
 public:
  virtual ~HostView() = default;
  /// What is drawn above the drawing.
  virtual HostViewOverlay& overlay() = 0;
  /// Camera of the active viewport.
  virtual OdGsView& gsView() = 0;
  /// Length of a screen pixel in drawing units.
  virtual double unitsPerPixel() const = 0;
};
