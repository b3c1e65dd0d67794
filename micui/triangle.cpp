#include "micui/triangle.h"

#include <cmath>
#include <numbers>

namespace micui {

std::vector<OdGePoint2d> triangle::points() const {
  const OdGePoint2d center{width / 2, height / 2};
  const double angle = static_cast<double>(direction) * (std::numbers::pi / 2);
  const double sine = std::sin(angle);
  const double cosine = std::cos(angle);
  // The box is not turned, so what points to the tip and what runs along the base swap their lengths.
  const OdGeVector2d to_tip{width * cosine, height * sine};
  const OdGeVector2d along_base{-width * sine, height * cosine};
  return {center + to_tip * 0.5, center - to_tip * 0.5 + along_base * 0.5,
          center - to_tip * 0.5 - along_base * 0.5};
}

}  // namespace micui
