#include "samples/first_floor/plan.h"

namespace samples {
namespace {

/// Where a wall is interrupted, measured along it.
struct Opening {
  double from;
  double to;
};

/// A straight wall as a rectangle of the plan; openings run along its longer side, in order.
struct Wall {
  Position lower_left;
  Position upper_right;
  std::vector<Opening> openings;
};

const std::vector<Wall>& walls() {
  static const std::vector<Wall> all = {
      {{0, 0}, {12000, 300}, {{900, 2700}, {4000, 5800}, {7000, 8800}, {10000, 11000}}},
      {{0, 8200}, {12000, 8500}, {{900, 2700}, {3900, 5700}, {6800, 8600}, {9600, 11400}}},
      {{0, 300}, {300, 8200}, {{3850, 4950}}},
      {{11700, 300}, {12000, 8200}, {{5900, 7400}}},
      {{300, 3680}, {11700, 3800}, {{1900, 2800}, {3700, 4600}, {9900, 11300}}},
      {{300, 5000}, {11700, 5120}, {{1900, 2800}, {4600, 5500}, {7200, 8100}, {9900, 10800}}},
      {{3300, 300}, {3420, 3680}, {}},
      {{9400, 300}, {9520, 3680}, {}},
      {{3300, 5120}, {3420, 8200}, {}},
      {{6300, 5120}, {6420, 8200}, {}},
      {{9000, 5120}, {9120, 8200}, {}},
  };
  return all;
}

// A piece of the wall between two places along it.
void draw_piece(Sheet& sheet, const Wall& wall, bool lies, double from, double to) {
  const Position begin = lies ? Position{from, wall.lower_left.y} : Position{wall.lower_left.x, from};
  const Position end = lies ? Position{to, wall.upper_right.y} : Position{wall.upper_right.x, to};
  sheet.rectangle(in_plan(begin.x, begin.y), in_plan(end.x, end.y));
}

void draw_wall(Sheet& sheet, const Wall& wall) {
  const bool lies = wall.upper_right.x - wall.lower_left.x > wall.upper_right.y - wall.lower_left.y;
  double from = lies ? wall.lower_left.x : wall.lower_left.y;
  for (const Opening& opening : wall.openings) {
    draw_piece(sheet, wall, lies, from, opening.from);
    from = opening.to;
  }
  draw_piece(sheet, wall, lies, from, lies ? wall.upper_right.x : wall.upper_right.y);
}

}  // namespace

void draw_walls(Sheet& sheet) {
  sheet.set_layer("WALLS");
  for (const Wall& wall : walls()) draw_wall(sheet, wall);
}

void draw_openings(Sheet& sheet) {
  sheet.set_layer("WINDOWS");
  for (const double x : {900.0, 4000.0, 7000.0})
    sheet.insert({.block = "WINDOW", .at = in_plan(x, 0), .scale_x = 1800, .scale_y = 300});
  for (const double x : {900.0, 3900.0, 6800.0, 9600.0})
    sheet.insert({.block = "WINDOW", .at = in_plan(x, 8200), .scale_x = 1800, .scale_y = 300});
  sheet.insert(
      {.block = "WINDOW", .at = in_plan(300, 3850), .scale_x = 1100, .scale_y = 300, .rotation = 90});
  sheet.insert(
      {.block = "WINDOW", .at = in_plan(12000, 5900), .scale_x = 1500, .scale_y = 300, .rotation = 90});

  sheet.set_layer("DOORS");
  for (const double x : {1900.0, 3700.0})
    sheet.insert({.block = "DOOR", .at = in_plan(x, 3680), .scale_x = 900, .scale_y = -900});
  for (const double x : {1900.0, 4600.0, 7200.0})
    sheet.insert({.block = "DOOR", .at = in_plan(x, 5120), .scale_x = 900, .scale_y = 900});
  sheet.insert({.block = "DOOR", .at = in_plan(10800, 5120), .scale_x = -900, .scale_y = 900});
  sheet.insert({.block = "DOOR", .at = in_plan(11000, 300), .scale_x = -1000, .scale_y = 1000});
}

}  // namespace samples
