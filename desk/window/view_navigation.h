#pragma once

#include <QPointF>
#include <optional>

class DeskDocument;
class OdGsView;
class QWheelEvent;

/// What the wheel and the middle button do to the camera.
class ViewNavigation {
 public:
  /// `view` has to outlive this.
  explicit ViewNavigation(OdGsView& view) : m_view(view) {}

  void setDocument(DeskDocument* document) { m_document = document; }
  /// Shows the whole drawing; an empty one shows a sheet of 420 by 297 units.
  void showAll();
  /// Zooms at the cursor; whether anything changed.
  bool turn(const QWheelEvent& event);
  /// Takes the drawing at a pixel.
  void grab(const QPointF& pixel) { m_grabbed = pixel; }
  /// Moves what was taken; whether anything is.
  bool drag(const QPointF& pixel);
  void drop() { m_grabbed.reset(); }

 private:
  OdGsView& m_view;
  DeskDocument* m_document = nullptr;
  std::optional<QPointF> m_grabbed;
};
