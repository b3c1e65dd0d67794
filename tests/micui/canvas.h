#pragma once

#include <string>

#include "micui/control.h"
#include "od/gi/OdGiRecorder.h"
#include "od/gi/OdGsView.h"

/// A view of 100 by 100 pixels from above, and a pen that lists what is drawn into it.
class canvas {
 public:
  explicit canvas(double units_per_pixel) {
    view.setDeviceRect({0, 0, 100, 100});
    zoom(units_per_pixel);
  }

  void zoom(double units_per_pixel) {
    view.setView({0, 0, 1}, {0, 0, 0}, {0, 1, 0}, 100 * units_per_pixel, 100 * units_per_pixel);
  }

  /// What a repaint of the whole tree draws, one line a primitive.
  std::string drawn(micui::control& root) {
    pen.clear();
    pen.traits() = {};
    OdGiViewportDraw draw(pen, context, view);
    micui::draw_tree(root, draw);
    return pen.describe();
  }

  OdGsView view;
  OdGiRecorder pen;
  OdGiDefaultContext context;
};

inline const OdCmEntityColor red{255, 0, 0};
inline const OdCmEntityColor blue{0, 0, 255};

/// A control of class `T` with a box and the colours red inside and blue at its edge.
template <typename T>
OdSmartPtr<T> painted(double width, double height) {
  const OdSmartPtr<T> made = odNew<T>();
  made->create_children();
  made->width = width;
  made->height = height;
  made->fill_color = red;
  made->border_color = blue;
  return made;
}
