#include "samples/first_floor/plan.h"

namespace samples {
namespace {

struct Room {
  std::u16string_view number;
  std::u16string_view name;
  std::u16string_view area;
  Position middle;
};

const Room kRooms[] = {
    {u"101", u"Office", u"10.1 m\u00B2", {1000, 3000}}, {u"102", u"Meeting", u"20.2 m\u00B2", {8600, 3000}},
    {u"103", u"Lobby", u"7.4 m\u00B2", {10600, 2300}},  {u"104", u"Office", u"9.2 m\u00B2", {2700, 6500}},
    {u"105", u"Office", u"8.9 m\u00B2", {5650, 6500}},  {u"106", u"Kitchen", u"7.9 m\u00B2", {7200, 6800}},
    {u"107", u"Archive", u"7.9 m\u00B2", {9700, 5950}}, {u"108", u"Corridor", u"13.7 m\u00B2", {6400, 4400}},
};

void label(Sheet& sheet, const Room& room) {
  const Position at = in_plan(room.middle.x, room.middle.y);
  sheet.insert_with_attribute({.block = "ROOM_TAG", .at = at}, u"NUMBER", room.number, 125);
  sheet.text({.text = room.name, .at = {at.x, at.y + 220}, .height = 175, .horizontal = 1});
  sheet.text({.text = room.area, .at = {at.x, at.y - 220}, .height = 125, .horizontal = 1, .vertical = 3});
}

}  // namespace

void label_rooms(Sheet& sheet) {
  sheet.set_layer("ROOMS");
  for (const Room& room : kRooms) label(sheet, room);
  sheet.text({.text = u"Window sill +0.90",
              .at = in_plan(4900, 420),
              .height = 90,
              .style = u"Lettering",
              .horizontal = 4});
  sheet.text({.text = u"Fire door %%uEI 30%%u",
              .at = in_plan(10700, 4820),
              .height = 90,
              .style = u"Lettering",
              .horizontal = 2});
  sheet.text({.text = u"Escape route",
              .at = in_plan(8800, 4330),
              .height = 175,
              .style = u"Lettering",
              .horizontal = 3,
              .second = in_plan(11000, 4330)});
  sheet.text({.text = u"Handrail on both sides",
              .at = in_plan(1000, 4650),
              .height = 90,
              .style = u"Notes",
              .horizontal = 5,
              .second = in_plan(4500, 4650)});
}

}  // namespace samples
