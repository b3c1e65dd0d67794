#include "samples/first_floor/plan.h"

namespace samples {
namespace {

void define_door(Sheet& sheet) {
  sheet.begin_block("DOOR");
  sheet.rectangle({0, 0}, {0.05, 1});
  sheet.arc({0, 0}, 1, 0, 90);
  sheet.end_block();
}

void define_window(Sheet& sheet) {
  sheet.begin_block("WINDOW");
  sheet.rectangle({0, 0}, {1, 1});
  sheet.line({0, 0.4}, {1, 0.4});
  sheet.line({0, 0.6}, {1, 0.6});
  sheet.end_block();
}

void define_chair(Sheet& sheet) {
  sheet.begin_block("CHAIR");
  sheet.polyline({{{-220, -200}}, {{220, -200}}, {{220, 150}, 0.4}, {{-220, 150}}});
  sheet.arc({0, 60}, 300, 30, 150);
  sheet.end_block();
}

void define_desk(Sheet& sheet) {
  sheet.begin_block("DESK");
  sheet.rectangle({-800, 0}, {800, 800});
  sheet.rectangle({-300, 560}, {300, 620});
  sheet.rectangle({-230, 180}, {230, 330});
  sheet.insert({.block = "CHAIR", .at = {0, -250}, .rotation = 180});
  sheet.end_block();
}

void define_plant(Sheet& sheet) {
  sheet.begin_block("PLANT");
  sheet.circle({}, 180);
  for (int leaf = 0; leaf < 6; ++leaf) sheet.arc({0, 0}, 260 + 20 * (leaf % 2), leaf * 60, leaf * 60 + 45);
  sheet.end_block();
}

void define_room_tag(Sheet& sheet) {
  sheet.begin_block("ROOM_TAG");
  sheet.polyline({{{-250, -150}}, {{250, -150}, 1}, {{250, 150}}, {{-250, 150}, 1}});
  sheet.attribute_definition(u"NUMBER", u"Number of the room", 125);
  sheet.end_block();
}

}  // namespace

void set_up(Sheet& sheet) {
  sheet.add_layer("WALLS", 7, 50);
  sheet.add_layer("DOORS", 3, 25);
  sheet.add_layer("WINDOWS", 4, 25);
  sheet.add_layer("FURNITURE", 8, 18);
  sheet.add_layer("ROOMS", 2, 25);
  sheet.add_layer("DIMENSIONS", 1, 18);
  sheet.add_layer("NOTES", 7, 25);
  sheet.add_layer("SHEET", 150, 35);
  sheet.add_style("Notes", "times.ttf", u"Times New Roman", 18);
  sheet.add_style("Lettering", "simplex.shx", u"", 0);
  sheet.set_layer("0");
  define_door(sheet);
  define_window(sheet);
  define_chair(sheet);
  define_desk(sheet);
  define_plant(sheet);
  define_room_tag(sheet);
}

}  // namespace samples
