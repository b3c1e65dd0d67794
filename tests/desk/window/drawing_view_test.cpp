#include "desk/window/drawing_view.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <vector>

namespace {

/// A view without a drawing, and the numbers of the messages that it sends.
struct PointedView {
  PointedView() {
    QObject::connect(&view, &DrawingView::sent,
                     [this](const HostWindowMessage& message) { numbers.push_back(message.number); });
  }

  void mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, QPointF(5, 5), QPointF(5, 5), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
  }

  DrawingView view;
  std::vector<unsigned> numbers;
};

using Numbers = std::vector<unsigned>;

}  // namespace

TEST(DrawingView, a_move_asks_for_the_cursor_first) {
  PointedView pointed;
  pointed.mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(pointed.numbers, (Numbers{WM_SETCURSOR, WM_MOUSEMOVE}));
}

TEST(DrawingView, a_drag_keeps_its_cursor_until_it_is_let_go) {
  PointedView pointed;
  pointed.mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  pointed.mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(pointed.numbers, (Numbers{WM_LBUTTONDOWN, WM_MOUSEMOVE}));
  pointed.mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
  EXPECT_EQ(pointed.numbers, (Numbers{WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_SETCURSOR}));
}
