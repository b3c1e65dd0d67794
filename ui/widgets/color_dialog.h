#pragma once

#include <QDialog>

#include "od/cm/OdCmEntityColor.h"

class PaletteGrid;
class QLabel;
class QSpinBox;

/// Asks for a colour: by layer, by block, by index, or a true colour.
class ColorDialog : public QDialog {
 public:
  ColorDialog(const OdCmEntityColor& start, QWidget* parent);

  const OdCmEntityColor& color() const { return m_color; }

 private:
  QWidget* indexPage();
  QWidget* truePage();
  void choose(const OdCmEntityColor& color);
  void chooseTrueColor();
  void showColor();

  OdCmEntityColor m_color;
  PaletteGrid* m_grid = nullptr;
  QSpinBox* m_bytes[3] = {};  ///< red, green, blue
  QLabel* m_swatch = nullptr;
  QLabel* m_name = nullptr;
};
