#include "desk/window/drawing_view.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>

#include "desk/window/mouse_messages.h"

namespace {

/// Where the input method has its caret: behind its text unless it says otherwise.
int composedCaret(const QInputMethodEvent& event) {
  for (const QInputMethodEvent::Attribute& attribute : event.attributes())
    if (attribute.type == QInputMethodEvent::Cursor) return attribute.start;
  return int(event.preeditString().size());
}

}  // namespace

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
  if (m_composing) QGuiApplication::inputMethod()->commit();
  if (event->button() == Qt::MiddleButton) m_navigation.grab(event->position());
  send(pressNumber(event->button()), *event);
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) m_navigation.drop();
  send(releaseNumber(event->button()), *event);
  if (event->button() == Qt::LeftButton) send(WM_SETCURSOR, *event);
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
  // What is dragged keeps its cursor, wherever the mouse is.
  if (!event->buttons().testFlag(Qt::LeftButton)) send(WM_SETCURSOR, *event);
  send(WM_MOUSEMOVE, *event);
}

void DrawingView::wheelEvent(QWheelEvent* event) {
  if (m_navigation.turn(*event)) update();
  event->accept();
}

void DrawingView::keyPressEvent(QKeyEvent* event) { emit keyLeft(event); }

void DrawingView::inputMethodEvent(QInputMethodEvent* event) {
  m_composing = !event->preeditString().isEmpty();
  emit composing(event->preeditString(), composedCaret(*event));
  if (!event->commitString().isEmpty()) emit composed(event->commitString());
  event->accept();
}

QVariant DrawingView::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query != Qt::ImCursorRectangle) return QWidget::inputMethodQuery(query);
  return caretBox();
}

QRect DrawingView::caretBox() const {
  const std::optional<HostCaret> caret = m_caret_source();
  if (!caret) return {};
  const OdGePoint2d top = m_view.gsView().toDevice(caret->top);
  const OdGePoint2d bottom = m_view.gsView().toDevice(caret->bottom);
  const QRectF ends(QPointF(top.x, top.y), QPointF(bottom.x, bottom.y));
  return ends.normalized().toAlignedRect().adjusted(0, 0, 1, 1);
}

void DrawingView::followCaret() {
  const QRect box = caretBox();
  if (box == m_caret_box) return;
  m_caret_box = box;
  updateMicroFocus(Qt::ImCursorRectangle);
}

void DrawingView::dropComposition() {
  if (!m_composing) return;
  QGuiApplication::inputMethod()->reset();
  m_composing = false;
  emit composing({}, 0);
}
