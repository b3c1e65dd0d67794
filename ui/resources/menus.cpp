#include "ui/resources/menus.h"

#include <array>

namespace resources {
namespace {

/// The right button in a text. What pops up is the sub-menu of the first row.
constexpr auto kTextMenu = std::to_array<ResourceMenuRow>({
    {0, 0, u"Text"},
    {1, 1005, u"Undo", u"Ctrl+Z"},
    {1, 1006, u"Redo", u"Ctrl+Y"},
    {1, 0, u""},
    {1, 1002, u"Cut", u"Ctrl+X"},
    {1, 1003, u"Copy", u"Ctrl+C"},
    {1, 1004, u"Paste", u"Ctrl+V"},
    {1, 0, u""},
    {1, 1001, u"Select all", u"Ctrl+A"},
    {1, 0, u""},
    {1, 0, u"Symbol"},
    {2, 1007, u"Degree", u"\u00B0"},
    {2, 1008, u"Plus/minus", u"\u00B1"},
    {2, 1009, u"Diameter", u"\u00D8"},
    {1, 0, u""},
    {1, 1049, u"Insert field"},
    {1, 1052, u"Edit field"},
    {1, 1054, u"Update field"},
    {1, 1056, u"Convert field to text"},
});

/// The same in a session with few tools.
constexpr auto kCompactTextMenu = std::to_array<ResourceMenuRow>({
    {0, 0, u"Text"},
    {1, 1005, u"Undo", u"Ctrl+Z"},
    {1, 1006, u"Redo", u"Ctrl+Y"},
    {1, 0, u""},
    {1, 1002, u"Cut", u"Ctrl+X"},
    {1, 1003, u"Copy", u"Ctrl+C"},
    {1, 1004, u"Paste", u"Ctrl+V"},
    {1, 0, u""},
    {1, 1001, u"Select all", u"Ctrl+A"},
    {1, 0, u""},
    {1, 0, u"Symbol"},
    {2, 1007, u"Degree", u"\u00B0"},
    {2, 1008, u"Plus/minus", u"\u00B1"},
    {2, 1009, u"Diameter", u"\u00D8"},
    {1, 0, u""},
    {1, 1049, u"Insert field"},
    {1, 1052, u"Edit field"},
    {1, 1054, u"Update fields"},
    {1, 1056, u"Convert field to text"},
});

constexpr auto kMenus = std::to_array<ResourceMenu>({{228, kTextMenu}, {236, kCompactTextMenu}});

}  // namespace

std::span<const ResourceMenu> menu_table() { return kMenus; }

void register_menus() { host::register_menus(kMenus); }

}  // namespace resources
