#include "od/fonts/outline_contours.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include "od/fonts/flatten_curve.h"

namespace {

struct Collector {
  std::vector<OdFontLine> contours{};
  double tolerance = 1;
};

OdGePoint2d pointOf(const FT_Vector* v) { return {static_cast<double>(v->x), static_cast<double>(v->y)}; }

Collector& collector(void* user) { return *static_cast<Collector*>(user); }

int moveTo(const FT_Vector* to, void* user) {
  collector(user).contours.push_back({pointOf(to)});
  return 0;
}

int lineTo(const FT_Vector* to, void* user) {
  collector(user).contours.back().push_back(pointOf(to));
  return 0;
}

int quadraticTo(const FT_Vector* control, const FT_Vector* to, void* user) {
  Collector& all = collector(user);
  odFlattenQuadratic(all.contours.back(), pointOf(control), pointOf(to), all.tolerance);
  return 0;
}

int cubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
  Collector& all = collector(user);
  odFlattenCubic(all.contours.back(), pointOf(control1), pointOf(control2), pointOf(to), all.tolerance);
  return 0;
}

}  // namespace

std::vector<OdFontLine> odOutlineContours(FT_Outline_& outline, double tolerance) {
  Collector all;
  all.tolerance = tolerance;
  FT_Outline_Funcs functions{moveTo, lineTo, quadraticTo, cubicTo, 0, 0};
  FT_Outline_Decompose(&outline, &functions, &all);
  for (OdFontLine& contour : all.contours) {
    if (contour.size() > 1 && contour.front() == contour.back()) contour.pop_back();
  }
  std::erase_if(all.contours, [](const OdFontLine& contour) { return contour.size() < 3; });
  return std::move(all.contours);
}
