#pragma once

#include <span>

#include "host/menu.h"

/// The menus of the module.
namespace resources {

/// Every menu by its number, in ascending order.
std::span<const ResourceMenu> menu_table();

/// Enters the table at the host, so that `host::resource_menu` finds its menus. Again and again changes
/// nothing.
void register_menus();

}  // namespace resources
