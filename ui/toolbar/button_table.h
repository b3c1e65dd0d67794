#pragma once

#include <optional>
#include <span>

#include "ui/toolbar/text_change.h"

class CMTextEdit;

namespace toolbar {

/// What a button does.
struct button_action {
  int id;
  /// Asks the user whatever has to be asked. Nothing: it is all done, or was cancelled.
  std::optional<text_change> (*ask)(CMTextEdit& toolbar);
};

/// One row for each button of the control table.
std::span<const button_action> button_table();

/// The row of a button. Throws `std::invalid_argument` for a number that no button has.
const button_action& action_of(int id);

}  // namespace toolbar
