#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct HostMenuItem;
using HostMenu = std::vector<HostMenuItem>;

/// One row of a popup menu.
struct HostMenuItem {
  int command = 0;      ///< what the menu returns; 0 for a separator and for a row that opens a sub-menu
  std::u16string text;  ///< empty for a separator
  std::u16string hint;  ///< at the right edge: keys that do the same, or the sign that is inserted
  bool enabled = true;
  bool checked = false;
  bool radio = false;                ///< checked by a dot: one of several rows is
  std::vector<HostMenuItem> rows{};  ///< of the sub-menu

  bool isSeparator() const { return text.empty(); }
};

/// One row of a menu in a table. The rows of a sub-menu follow the row that opens it, one level deeper.
struct ResourceMenuRow {
  int depth;                   ///< 0 at the top; never more than one deeper than the row before
  int command;                 ///< 0 for a separator and for a row that opens a sub-menu
  const char16_t* text;        ///< not translated yet; empty for a separator
  const char16_t* hint = u"";  ///< not translated yet
};

/// A menu by its number.
struct ResourceMenu {
  int number;
  std::span<const ResourceMenuRow> rows;
};

namespace host {

/// Enters the menus of a module; their rows have to live as long as the process. A number that is there
/// already must have the same rows, and no row may be too deep: `std::invalid_argument` otherwise.
void register_menus(std::span<const ResourceMenu> table);

/// The menu of a number, with its texts translated. Throws `std::invalid_argument` for a number that no table
/// has.
HostMenu resource_menu(int number);

/// Every row of a menu and of its sub-menus, from the top down.
std::vector<const HostMenuItem*> all_rows(const HostMenu& menu);

/// Calls `change` for every row of a menu and of its sub-menus.
void change_rows(HostMenu& menu, const std::function<void(HostMenuItem&)>& change);

/// Takes the rows out of a menu and of its sub-menus for which `unwanted` holds, the sub-menus that end up
/// empty, and the separators that no longer stand between rows.
void remove_rows(HostMenu& menu, const std::function<bool(const HostMenuItem&)>& unwanted);

}  // namespace host
