#include "mtext/entity/draw_stack.h"

#include <cmath>
#include <numbers>

#include "mtext/entity/part_pen.h"

namespace mtext {

namespace {

constexpr double kDigitHeight = 0.7;

enum stack_kind : std::uint32_t { kHorizontal = 0, kTolerance = 1, kDiagonal = 2 };

/// Y half way between the two texts.
double middle_of(const geom_stack& stack) { return stack.y + (stack.size.above - stack.size.below) / 2; }

/// X of the numerator and of the denominator.
struct starts {
  double top, bottom;
};

starts starts_of(const geom_stack& stack) {
  if (stack.kind == kDiagonal) return {stack.x, stack.x + stack.top_size.advance};
  return {stack.x + (stack.size.advance - stack.top_size.advance) / 2,
          stack.x + (stack.size.advance - stack.bottom_size.advance) / 2};
}

void draw_horizontal(const geom_stack& stack, OdGiGeometry& geometry) {
  const double y = middle_of(stack);
  geometry.polyline({{stack.x, y, 0}, {stack.x + stack.size.advance, y, 0}});
}

/// A stroke of 60 degrees against the vertical through the stack's centre.
void draw_diagonal(const geom_stack& stack, OdGiGeometry& geometry) {
  const double height = stack.size.above + stack.size.below;
  const double dx = std::sin(std::numbers::pi / 3) * 0.3 * height;
  const double dy = std::cos(std::numbers::pi / 3) * 0.3 * height;
  const double x = stack.x + stack.size.advance / 2;
  const double y = middle_of(stack);
  geometry.polyline({{x - dx, y - dy, 0}, {x + dx, y + dy, 0}});
}

}  // namespace

void draw_stack(const geom_stack& stack, part_pen& pen) {
  format::string digits = stack.format;
  digits.height *= kDigitHeight;
  const starts x = starts_of(stack);
  const double middle = middle_of(stack);
  pen.text({x.top, middle + stack.top_size.below}, stack.numerator, digits);
  pen.text({x.bottom, middle - stack.bottom_size.above}, stack.denominator, digits);
  if (stack.kind == kHorizontal) draw_horizontal(stack, pen.geometry());
  if (stack.kind == kDiagonal) draw_diagonal(stack, pen.geometry());
}

}  // namespace mtext
