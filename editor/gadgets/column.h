#pragma once

#include "micui/control.h"

namespace mtext {

/// The box of one text column with its handles, which stand at the corner away from the attachment point.
class column : public micui::control {
 public:
  std::size_t index = 0;  ///< place of the column, from 0
  int vertical = 0;       ///< attachment row: 0 top, 1 middle, 2 bottom
  int horizontal = 1;     ///< side the column is attached by: 1 left; 3 right, with its handles on the left

  void create_children() override;
  void layout() override;

 private:
  void place_border();
  void place_grip();
  void place_height_handles();
};

}  // namespace mtext
