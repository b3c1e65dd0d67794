#include "desk/window/drawing_view.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>

#include "desk/window/mouse_messages.h"

DrawingView::DrawingView(QWidget* parent)
    : QWidget(parent), m_view([this] { update(); }), m_painter(m_view), m_navigation(m_view.gsView()) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_InputMethodEnabled);
  setCursor(Qt::CrossCursor);
  setMinimumSize(120, 80);
}

void DrawingView::setDocument(DeskDocument* document) {
  m_painter.setDocument(document);
  m_navigation.setDocument(document);
  m_navigation.showAll();
  update();
}

void DrawingView::paintIfStale() {
  if (m_painter.isStale() || m_view.overlay().isInvalid()) update();
}

void DrawingView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  m_painter.paint(painter, size(), devicePixelRatioF());
}

/// The first size that the view gets is the one in which the whole drawing is to be seen.
void DrawingView::resizeEvent(QResizeEvent* event) {
  m_view.gsView().setDeviceRect({0, 0, double(width()), double(height())});
  if (!event->oldSize().isValid()) m_navigation.showAll();
}

void DrawingView::locate(HostWindowMessage& message) const {
  const QPoint at = mapFromGlobal(QCursor::pos());
  message.pixel = {at.x(), at.y()};
  message.point = m_view.gsView().toWorld({double(at.x()), double(at.y())});
}

void DrawingView::send(unsigned number, const QMouseEvent& event) {
  if (number != 0) emit sent(mouseMessage(number, event, m_view.gsView()));
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) m_navigation.grab(event->position());
  send(pressNumber(event->button()), *event);
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) m_navigation.drop();
  send(releaseNumber(event->button()), *event);
}

void DrawingView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    m_navigation.showAll();
    update();
  }
  send(doubleClickNumber(event->button()), *event);
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
  if (m_navigation.drag(event->position())) update();
  const OdGePoint3d point = m_view.gsView().toWorld({event->position().x(), event->position().y()});
  emit pointed(point.x, point.y);
  send(WM_MOUSEMOVE, *event);
}

void DrawingView::wheelEvent(QWheelEvent* event) {
  if (m_navigation.turn(*event)) update();
  event->accept();
}

void DrawingView::keyPressEvent(QKeyEvent* event) { emit keyLeft(event); }

void DrawingView::inputMethodEvent(QInputMethodEvent* event) {
  if (!event->commitString().isEmpty()) emit composed(event->commitString());
  event->accept();
}
