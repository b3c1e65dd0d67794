#include "desk/window/view_painter.h"

#include <QPainter>
#include <utility>

#include "desk/document/desk_document.h"
#include "desk/painter/paint_drawing.h"
#include "desk/window/window_view.h"

namespace {
constexpr double kLineWidth = 1;
constexpr double kHighlightWidth = 2.5;
}  // namespace

void ViewPainter::setDocument(DeskDocument* document) {
  m_document = document;
  m_pictures.reset();
  m_overlay = {};
  m_selected.clear();
  m_diagnostics_taken = 0;
  if (document) m_pictures.emplace(document->database());
  m_ground_is_stale = true;
}

void ViewPainter::setBackground(Background background) {
  m_background = background;
  m_view.gsView().setBackgroundColor(PaintColors(background).backgroundColor());
  m_ground_is_stale = true;
}

void ViewPainter::invalidate(const OdDbObjectId& id) {
  if (m_pictures) m_pictures->invalidate(id);
  m_ground_is_stale = true;
}

bool ViewPainter::isStale() const {
  return m_ground_is_stale || Camera::of(m_view.gsView()) != m_camera ||
         (m_document && m_document->pickFirst().ids() != m_selected);
}

std::vector<OdString> ViewPainter::takeDiagnostics() {
  if (!m_pictures) return {};
  const std::vector<OdString>& all = m_pictures->diagnostics();
  const auto first =
      all.begin() + static_cast<std::ptrdiff_t>(std::exchange(m_diagnostics_taken, all.size()));
  return {first, all.end()};
}

void ViewPainter::paint(QPainter& painter, QSize size, double ratio) {
  if (!m_document) return painter.fillRect(QRect(QPoint(), size), PaintColors(m_background).background());
  const bool changed = m_pictures->refresh(m_view.gsView());
  const QSize pixels = size * ratio;
  if (changed || m_ground_is_stale || m_ground.size() != pixels || m_camera != Camera::of(m_view.gsView()))
    paintGround(size, ratio);
  painter.drawPixmap(0, 0, m_ground);
  const QRectF visible = painter.deviceTransform().mapRect(QRectF(QPointF(), QSizeF(size)));
  paintSelection(painter, visible, ratio);
  paintOverlay(painter, visible, ratio);
}

void ViewPainter::paintGround(QSize size, double ratio) {
  const PaintColors colors(m_background);
  m_ground = QPixmap(size * ratio);
  m_ground.fill(colors.background());
  QPainter painter(&m_ground);
  painter.scale(ratio, ratio);
  const QRectF visible(QPointF(), QSizeF(m_ground.size()));
  paintDrawing(painter, *m_pictures,
               {colors, m_pictures->frame().toDevice(m_view.gsView()), kLineWidth * ratio}, visible);
  painter.end();
  m_ground.setDevicePixelRatio(ratio);
  m_camera = Camera::of(m_view.gsView());
  m_ground_is_stale = false;
}

void ViewPainter::paintSelection(QPainter& painter, const QRectF& visible, double ratio) {
  const PaintColors colors(m_background);
  m_selected = m_document->pickFirst().ids();
  for (const OdDbObjectId& id : m_selected) {
    const Picture* picture = m_pictures->find(id);
    if (!picture) continue;
    paintPicture(painter, *picture,
                 {.colors = colors,
                  .transform = m_pictures->frame().toDevice(m_view.gsView()),
                  .line_width = kHighlightWidth * ratio,
                  .only_color = colors.highlight()},
                 visible);
  }
}

void ViewPainter::paintOverlay(QPainter& painter, const QRectF& visible, double ratio) {
  m_view.overlay().setPainting(true);
  m_overlay.refresh(m_view.overlay(), m_document->database(), m_pictures->frame(), m_view.gsView());
  m_view.overlay().setPainting(false);
  const PaintSettings settings{PaintColors(m_background), m_pictures->frame().toDevice(m_view.gsView()),
                               kLineWidth * ratio};
  for (const Picture* picture : m_overlay.pictures()) paintPicture(painter, *picture, settings, visible);
}
