#pragma once

#include <QColor>

#include "od/cm/OdCmEntityColor.h"

/// The two grounds that a drawing is shown on.
enum class Background { dark, light };

/// Colours as they come out on one ground.
class PaintColors {
 public:
  explicit PaintColors(Background background) : m_background(background) {}

  QColor background() const;
  /// The ground as the view's camera tells it to drawables.
  OdCmEntityColor backgroundColor() const;
  /// Of what is selected.
  QColor highlight() const;
  /// A colour that is no longer "by layer" or "by block". Index 7 and the foreground are white on the dark
  /// ground and black on the light one; "none" is the ground itself. `alpha` 255 is opaque.
  QColor shown(const OdCmEntityColor& color, int alpha) const;

 private:
  Background m_background;
};
