#include "samples/first_floor/first_floor.h"

#include "samples/first_floor/plan.h"

namespace samples {

std::string first_floor() {
  Sheet sheet;
  set_up(sheet);
  draw_walls(sheet);
  draw_openings(sheet);
  draw_furniture(sheet);
  label_rooms(sheet);
  draw_dimensions(sheet);
  write_notes(sheet);
  draw_title_block(sheet);
  return sheet.finish();
}

}  // namespace samples
