#include "tests/editor/drawn_shapes.h"

#include <cmath>
#include <ostream>

#include "od/gi/OdGiRecorder.h"

namespace {

std::string color_text(const OdCmEntityColor& color) {
  if (!color.isByColor()) return "color " + std::to_string(color.colorIndex());
  return std::to_string(color.red()) + "," + std::to_string(color.green()) + "," +
         std::to_string(color.blue());
}

std::string look_of(const OdGiPrimitive& primitive) {
  const bool filled =
      primitive.kind == OdGiPrimitive::kPolygon ||
      (primitive.kind == OdGiPrimitive::kCircle && primitive.traits.fillType() == kOdGiFillAlways);
  const OdGiTransparency clear = primitive.traits.transparency();
  return (filled ? "fill " : "line ") + color_text(primitive.traits.trueColor()) +
         (clear.isByAlpha() ? " alpha " + std::to_string(clear.alpha()) : "");
}

OdGeExtents3d box_of(const OdGiPrimitive& primitive, const OdGeMatrix3d& to_text) {
  OdGeExtents3d box;
  for (const OdGiContour& contour : primitive.contours)
    for (const OdGePoint3d& point : contour) box.addPoint(to_text * point);
  if (primitive.kind != OdGiPrimitive::kCircle) return box;
  const OdGePoint3d center = to_text * primitive.center;
  const OdGeVector3d reach{primitive.radius, primitive.radius, 0};
  box.addPoint(center - reach);
  box.addPoint(center + reach);
  return box;
}

}  // namespace

bool operator==(const drawn_shape& a, const drawn_shape& b) {
  const auto near = [](double x, double y) { return std::abs(x - y) < 1e-6; };
  return a.look == b.look && near(a.left, b.left) && near(a.bottom, b.bottom) && near(a.right, b.right) &&
         near(a.top, b.top);
}

std::ostream& operator<<(std::ostream& out, const drawn_shape& shape) {
  return out << shape.look << " from " << shape.left << ',' << shape.bottom << " to " << shape.right << ','
             << shape.top;
}

std::vector<drawn_shape> shapes_of(smart_edit& session, gadget_draw& layer, const OdGsView& view) {
  OdGiRecorder recorder;
  recorder.record(layer, OdGiDefaultContext(), &view);
  const OdGeMatrix3d to_text = session.editable().frame().world_to_text();
  std::vector<drawn_shape> shapes;
  for (const OdGiPrimitive& each : recorder.primitives()) {
    const OdGeExtents3d box = box_of(each, to_text);
    shapes.push_back({look_of(each), box.minPoint().x, box.minPoint().y, box.maxPoint().x, box.maxPoint().y});
  }
  return shapes;
}

void set_pixel(OdGsView& view, double units) {
  const double factor = units / view.pixelSize();
  view.setView(view.position(), view.target(), view.upVector(), view.fieldWidth() * factor,
               view.fieldHeight() * factor);
}
