#pragma once

#include <QWidget>
#include <functional>

#include "desk/window/view_navigation.h"
#include "desk/window/view_painter.h"
#include "desk/window/window_view.h"
#include "host/composer.h"
#include "host/input.h"

/// The part of the window that shows the drawing. What the mouse does in it goes to the prompt that waits,
/// but for the wheel and the middle button, which move the camera.
class DrawingView : public QWidget {
  Q_OBJECT

 public:
  explicit DrawingView(QWidget* parent = nullptr);

  WindowView& hostView() { return m_view; }
  ViewPainter& painter() { return m_painter; }
  ViewNavigation& navigation() { return m_navigation; }

  /// Shows another drawing, from edge to edge.
  void setDocument(DeskDocument* document);
  /// Paints soon if something changed that nobody told of, such as the selection.
  void paintIfStale();
  /// Asked for the caret of the text that is being typed; input methods show their candidates there.
  void setCaretSource(std::function<std::optional<HostCaret>()> source) {
    m_caret_source = std::move(source);
  }
  /// Tells the input method when the caret has moved.
  void followCaret();
  /// Whether an input method composes text that it has not committed yet.
  bool isComposing() const { return m_composing; }
  /// Has the input method drop what it composes.
  void dropComposition();
  /// The world point and pixel of the cursor, into a message.
  void locate(HostWindowMessage& message) const;

 signals:
  /// A message for the prompt that waits.
  void sent(const HostWindowMessage& message);
  /// The cursor is over this point of the drawing.
  void pointed(double x, double y);
  /// A key that no session takes.
  void keyLeft(QKeyEvent* event);
  /// Text that an input method has committed.
  void composed(const QString& text);
  /// Text that an input method composes, with a caret; empty when it composes nothing any more.
  void composing(const QString& text, int caret);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 private:
  void send(unsigned number, const QMouseEvent& event);
  /// The upright box around the caret, in pixels; empty without one.
  QRect caretBox() const;

  WindowView m_view;
  ViewPainter m_painter;
  ViewNavigation m_navigation;
  std::function<std::optional<HostCaret>()> m_caret_source = [] { return std::nullopt; };
  QRect m_caret_box;
  bool m_composing = false;
};
