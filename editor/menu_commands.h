#pragma once

#include <optional>
#include <span>

#include "od/ge/OdGePoint2d.h"

class smart_edit;

namespace editing {

/// Where a popup menu was opened.
struct menu_place {
  smart_edit& session;
  std::optional<OdGePoint2d> at;  ///< in text coordinates; none where the view shows no point of the plane
};

/// One command of the popup menu.
struct menu_command {
  int command;                         ///< its number in the menu
  bool (*belongs)(const menu_place&);  ///< whether the menu has the row at all; null: always
  bool (*enabled)(const menu_place&);  ///< whether it can be chosen; null: always
  void (*action)(const menu_place&);
  int kind;  ///< undo step pushed first; `kUndoNone`: none, or the action pushes its own once it is sure of
             ///< it
};

/// All commands but the symbols, which stand in a table of their own. A row of a menu whose command stands in
/// neither is not shown.
std::span<const menu_command> menu_command_table();

/// Whether the menu shows a command at this place.
bool is_offered(int command, const menu_place& place);

/// Whether a command that is shown can be chosen.
bool is_enabled(int command, const menu_place& place);

/// Runs a command that was chosen. False for a number that stands for no command that can be chosen here:
/// then nothing happened.
bool run_menu_command(int command, const menu_place& place);

}  // namespace editing
