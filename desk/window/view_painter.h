#pragma once

#include <QPixmap>
#include <optional>

#include "desk/painter/camera.h"
#include "desk/painter/drawing_pictures.h"
#include "desk/painter/overlay_pictures.h"
#include "desk/painter/paint_colors.h"
#include "host/selection_set.h"

class DeskDocument;
class QPainter;
class WindowView;

/// Paints the drawing view. The drawing itself is kept as a pixmap, so that a blinking caret or a moving
/// rubber box costs its own painting alone.
class ViewPainter {
 public:
  explicit ViewPainter(WindowView& view) : m_view(view) {}

  /// Takes another drawing; it has to outlive its time here. Null for none.
  void setDocument(DeskDocument* document);
  void setBackground(Background background);
  Background background() const { return m_background; }
  /// The picture of an entity is out of date.
  void invalidate(const OdDbObjectId& id);

  /// Paints a view of `size` logical pixels, at `ratio` device pixels each.
  void paint(QPainter& painter, QSize size, double ratio);
  /// Sentences about what could not be drawn as the drawing says, those that were not taken before.
  std::vector<OdString> takeDiagnostics();
  /// Whether the selection or the camera changed since the last painting.
  bool isStale() const;

 private:
  void paintGround(QSize size, double ratio);
  void paintSelection(QPainter& painter, const QRectF& visible, double ratio);
  void paintOverlay(QPainter& painter, const QRectF& visible, double ratio);

  WindowView& m_view;
  DeskDocument* m_document = nullptr;
  Background m_background = Background::dark;
  std::optional<DrawingPictures> m_pictures;
  OverlayPictures m_overlay;
  QPixmap m_ground;
  Camera m_camera;
  std::size_t m_diagnostics_taken = 0;
  std::vector<OdDbObjectId> m_selected;
  bool m_ground_is_stale = true;
};
