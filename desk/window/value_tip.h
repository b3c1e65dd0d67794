#pragma once

#include <QLabel>

/// A short text that goes along with the mouse over a view, in the colours of a tooltip. It is a part of the
/// view and no window of its own, so it moves in the same frame as what is drawn below it.
class ValueTip : public QLabel {
 public:
  /// `view` owns it. It is hidden at first, and no event of the mouse stops at it.
  explicit ValueTip(QWidget& view);

  /// Shows a text to the lower right of a point of the view, or on the other side where there is no room.
  void showAt(QPoint mouse, const QString& text);
};
