#include "samples/first_floor/plan.h"

namespace samples {
namespace {

constexpr double kTick = 75;

// A mark across the end of a dimension line.
void tick(Sheet& sheet, Position at) {
  sheet.line({at.x - kTick, at.y - kTick}, {at.x + kTick, at.y + kTick});
}

void measure_across(Sheet& sheet, double from, double to, double y, std::u16string_view text) {
  const Position begin = in_plan(from, y);
  const Position end = in_plan(to, y);
  sheet.line(begin, end);
  tick(sheet, begin);
  tick(sheet, end);
  sheet.text(
      {.text = text, .at = {(begin.x + end.x) / 2, y + kOrigin.y + 50}, .horizontal = 1, .vertical = 1});
}

void measure_upwards(Sheet& sheet, double from, double to, double x, std::u16string_view text) {
  const Position begin = in_plan(x, from);
  const Position end = in_plan(x, to);
  sheet.line(begin, end);
  tick(sheet, begin);
  tick(sheet, end);
  sheet.text({.text = text,
              .at = {begin.x - 50, (begin.y + end.y) / 2},
              .rotation = 90,
              .horizontal = 1,
              .vertical = 1});
}

}  // namespace

void draw_dimensions(Sheet& sheet) {
  sheet.set_layer("DIMENSIONS");
  measure_across(sheet, 0, 12000, -800, u"12000");
  measure_across(sheet, 0, 3360, -400, u"3360");
  measure_across(sheet, 3360, 9460, -400, u"6100");
  measure_across(sheet, 9460, 12000, -400, u"2540");
  measure_upwards(sheet, 0, 8500, 12500, u"8500%%p5");
}

}  // namespace samples
