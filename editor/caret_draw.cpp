#include "editor/caret_draw.h"

#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "od/gi/OdGiGeometry.h"

namespace editing {

namespace {

/// Half the width of the bars, in lengths of the caret.
constexpr double kHalfBar = 0.1;

void draw_caret(const ExMTextEditable& text, const mtext::marks::selection& caret, OdGiGeometry& geometry) {
  OdGePoint2d top, bottom;
  text.displayedCaret(caret, top, bottom);
  const OdGeMatrix3d to_world = text.frame().text_to_world();
  const OdGePoint3d high = to_world * OdGePoint3d{top.x, top.y, 0};
  const OdGePoint3d low = to_world * OdGePoint3d{bottom.x, bottom.y, 0};
  const OdGeVector3d bar = to_world * OdGeVector3d{kHalfBar * top.distanceTo(bottom), 0, 0};
  geometry.polyline({high - bar, high + bar});
  geometry.polyline({high, low});
  geometry.polyline({low - bar, low + bar});
}

}  // namespace

void draw_carets(const ExMTextEditable& text, OdGiGeometry& geometry) {
  const OdGiSubEntityTraits before = geometry.traits();
  geometry.traits().setColor(OdCmEntityColor::kACIForeground);
  for (const auto& selection : selections_of(text.displayed()))
    if (selection.empty()) draw_caret(text, selection, geometry);
  geometry.traits() = before;
}

}  // namespace editing
