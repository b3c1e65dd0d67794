#include <array>
#include <charconv>
#include <cmath>

#include "od/gi/OdGiRecorder.h"

namespace {

/// Six significant digits, the same under every locale; what is as good as 0 is 0.
std::string shortNumber(double value) {
  if (std::abs(value) < 1e-9) return "0";
  std::array<char, 32> digits{};
  auto [end, failure] = std::to_chars(digits.begin(), digits.end(), value, std::chars_format::general, 6);
  return {digits.data(), end};
}

std::string coordinates(double x, double y, double z) {
  std::string depth = shortNumber(z);
  return "(" + shortNumber(x) + "," + shortNumber(y) + (depth == "0" ? "" : "," + depth) + ")";
}

std::string text(const OdGePoint3d& p) { return coordinates(p.x, p.y, p.z); }
std::string text(const OdGeVector3d& v) { return coordinates(v.x, v.y, v.z); }

std::string pointsText(const OdGiContour& points) {
  std::string result;
  for (const OdGePoint3d& p : points) result += (result.empty() ? "" : " ") + text(p);
  return result;
}

std::string contoursText(const std::vector<OdGiContour>& contours) {
  std::string result;
  for (const OdGiContour& contour : contours) result += (result.empty() ? "" : " | ") + pointsText(contour);
  return result;
}

std::string colorText(const OdCmEntityColor& color) {
  if (color.isByLayer()) return {};
  if (color.isByBlock()) return " color byblock";
  if (!color.isByColor()) return " color " + std::to_string(color.colorIndex());
  return " rgb " + std::to_string(color.red()) + "," + std::to_string(color.green()) + "," +
         std::to_string(color.blue());
}

std::string traitsText(const OdGiSubEntityTraits& traits) {
  const OdGiSubEntityTraits usual;
  std::string result = colorText(traits.trueColor());
  if (traits.layer() != usual.layer()) result += " layer " + traits.layer().toUtf8();
  if (traits.transparency().isByAlpha()) result += " alpha " + std::to_string(traits.transparency().alpha());
  if (traits.lineType() != usual.lineType()) result += " linetype " + traits.lineType().toUtf8();
  if (traits.lineWeight() != usual.lineWeight()) result += " weight " + std::to_string(traits.lineWeight());
  return result;
}

}  // namespace

std::string OdGiPrimitive::describe() const {
  std::string round = text(center) + " r " + shortNumber(radius);
  if (!normal.isEqualTo(OdGeVector3d::kZAxis)) round += " normal " + text(normal);
  switch (kind) {
    case kPolyline:
      return "polyline " + contoursText(contours) + traitsText(traits);
    case kPolygon:
      return "polygon " + contoursText(contours) + traitsText(traits);
    case kCircle:
      return "circle " + round + (traits.fillType() == kOdGiFillAlways ? " filled" : "") + traitsText(traits);
    case kArc:
      return "arc " + round + " from " + text(startVector) + " sweep " + shortNumber(sweep) +
             traitsText(traits);
  }
  return {};
}
