#include "samples/first_floor/plan.h"

namespace samples {
namespace {

constexpr double kRight = 20500;
constexpr double kLeft = 11500;
constexpr double kBottom = 500;
constexpr double kTop = 3100;

struct Field {
  std::u16string_view label;
  std::u16string_view value;
  Position at;  ///< upper left corner of the cell
};

const Field kFields[] = {
    {u"Drawn", u"M. Keller", {kLeft, 1300}},
    {u"Date", u"12.03.2024", {13750, 1300}},
    {u"Scale", u"1:50", {16000, 1300}},
    {u"Sheet", u"A-101", {18250, 1300}},
};

void draw_lines(Sheet& sheet) {
  sheet.rectangle({0, 0}, {21000, 14850});
  sheet.rectangle({1000, 500}, {kRight, 14350});
  sheet.rectangle({kLeft, kBottom}, {kRight, kTop});
  sheet.line({kLeft, 1300}, {kRight, 1300});
  for (const double x : {13750.0, 16000.0, 18250.0}) sheet.line({x, kBottom}, {x, 1300});
  // Marks in the middle of the sheet's edges, for folding and copying.
  sheet.line({10500, 0}, {10500, 500});
  sheet.line({10500, 14850}, {10500, 14350});
}

}  // namespace

void draw_title_block(Sheet& sheet) {
  sheet.set_layer("SHEET");
  draw_lines(sheet);
  for (const Field& field : kFields) {
    sheet.text({.text = field.label, .at = {field.at.x + 80, field.at.y - 80}, .height = 90, .vertical = 3});
    sheet.text(
        {.text = field.value, .at = {field.at.x + 80, kBottom + 150}, .height = 250, .style = u"Lettering"});
  }
  sheet.paragraphs({.text =
                        u"{\\fArial|b1|i0|c0|p34;Office in Mill Lane}\\P"
                        u"{\\H0.6x;First floor, ground plan\\P{\\C8;Conversion of a workshop into offices}}",
                    .at = {kLeft + 150, kTop - 120},
                    .height = 330,
                    .width = 6500});
  sheet.text(
      {.text = u"Rev. A", .at = {kRight - 150, kTop - 150}, .height = 175, .horizontal = 2, .vertical = 3});
  sheet.text({.text = u"Mill & Lane Architects",
              .at = {kRight - 150, 1400},
              .height = 125,
              .style = u"Notes",
              .horizontal = 2,
              .vertical = 1});
}

}  // namespace samples
