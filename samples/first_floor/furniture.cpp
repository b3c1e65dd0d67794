#include "samples/first_floor/plan.h"

namespace samples {
namespace {

void draw_desks(Sheet& sheet) {
  const Placement desks[] = {
      {.block = "DESK", .at = in_plan(1400, 1500), .rotation = 180},
      {.block = "DESK", .at = in_plan(1400, 7000)},
      {.block = "DESK", .at = in_plan(4860, 7000)},
  };
  for (const Placement& desk : desks) sheet.insert(desk);
}

// A table with round ends and a chair at each of its places.
void draw_meeting_table(Sheet& sheet) {
  const Position left = in_plan(5200, 1300);
  const Position right = in_plan(7600, 1300);
  sheet.polyline({{left}, {right, 1}, {{right.x, right.y + 1100}}, {{left.x, left.y + 1100}, 1}});
  for (int place = 0; place < 4; ++place) {
    const double x = 5300 + 730 * place;
    sheet.insert({.block = "CHAIR", .at = in_plan(x, 950), .rotation = 180});
    sheet.insert({.block = "CHAIR", .at = in_plan(x, 2750)});
  }
}

void draw_kitchen(Sheet& sheet) {
  sheet.rectangle(in_plan(6420, 7600), in_plan(9000, 8200));
  sheet.rectangle(in_plan(7900, 7680), in_plan(8500, 8080));
  sheet.circle(in_plan(8200, 7880), 40);
  for (const double x : {6650.0, 7000.0}) {
    for (const double y : {7760.0, 8030.0}) sheet.circle(in_plan(x, y), 110);
  }
}

void draw_shelves(Sheet& sheet) {
  for (const double x : {9250.0, 9950.0, 10650.0}) {
    sheet.rectangle(in_plan(x, 6700), in_plan(x + 400, 8100));
    sheet.line(in_plan(x, 6700), in_plan(x + 400, 8100));
  }
}

}  // namespace

void draw_furniture(Sheet& sheet) {
  sheet.set_layer("FURNITURE");
  draw_desks(sheet);
  draw_meeting_table(sheet);
  draw_kitchen(sheet);
  draw_shelves(sheet);
  for (const Position& at : {in_plan(2950, 700), in_plan(11400, 650), in_plan(9050, 650), in_plan(650, 5500)})
    sheet.insert({.block = "PLANT", .at = at});
}

}  // namespace samples
