#pragma once

#include <QWidget>
#include <functional>

/// The colours of the indices 1 to 255, to choose one by mouse or keys.
class PaletteGrid : public QWidget {
 public:
  explicit PaletteGrid(QWidget* parent);

  /// Told the index that the user chose.
  std::function<void(int)> chosen;
  /// Shows an index as the chosen one; 0 for none.
  void select(int index);
  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect cell(int index) const;
  void choose(int index);

  int m_selected = 0;
};
