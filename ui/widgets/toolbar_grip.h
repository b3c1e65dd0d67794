#pragma once

#include <QWidget>

/// The edge of a window without a frame that the mouse moves the window by.
class ToolbarGrip : public QWidget {
 public:
  explicit ToolbarGrip(QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QPoint m_held;  ///< of the window, where it was taken
};
