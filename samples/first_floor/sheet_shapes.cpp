#include "samples/first_floor/groups.h"
#include "samples/first_floor/sheet.h"

namespace samples {

void Sheet::line(Position from, Position to) {
  Groups(entity("LINE")).mark(100, "AcDbLine").point(10, from).point(11, to);
}

void Sheet::polyline(const std::vector<Corner>& corners, bool closed) {
  Groups groups(entity("LWPOLYLINE"));
  groups.mark(100, "AcDbPolyline").integer(90, static_cast<int>(corners.size())).integer(70, closed ? 1 : 0);
  groups.real(43, 0);
  for (const Corner& corner : corners) {
    groups.real(10, corner.at.x).real(20, corner.at.y);
    if (corner.bulge != 0) groups.real(42, corner.bulge);
  }
}

void Sheet::rectangle(Position lower_left, Position upper_right) {
  polyline({{lower_left}, {{upper_right.x, lower_left.y}}, {upper_right}, {{lower_left.x, upper_right.y}}});
}

void Sheet::circle(Position center, double radius) {
  Groups(entity("CIRCLE")).mark(100, "AcDbCircle").point(10, center).real(40, radius);
}

void Sheet::arc(Position center, double radius, double from, double to) {
  Groups groups(entity("ARC"));
  groups.mark(100, "AcDbCircle").point(10, center).real(40, radius);
  groups.mark(100, "AcDbArc").real(50, from).real(51, to);
}

void Sheet::insert(const Placement& placement) {
  Groups groups(entity("INSERT"));
  groups.mark(100, "AcDbBlockReference").mark(2, placement.block).point(10, placement.at);
  groups.real(41, placement.scale_x).real(42, placement.scale_y).real(43, 1).real(50, placement.rotation);
}

}  // namespace samples
