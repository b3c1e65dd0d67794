// A table: the menus of the module.
#include "ui/resources/menus.h"

#include <array>

namespace resources {
namespace {

/// The right button in a text. What pops up is the sub-menu of the first row.
constexpr auto text_menu(const char16_t* update_field) {
  return std::to_array<ResourceMenuRow>({
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
      {1, 1054, update_field},
      {1, 1056, u"Convert field to text"},
  });
}

constexpr auto kTextMenu = text_menu(u"Update field");
/// In a session with few tools.
constexpr auto kCompactTextMenu = text_menu(u"Update fields");

/// The last row gives way to the bullets.
constexpr auto kNumberingMenu = std::to_array<ResourceMenuRow>({
    {0, 0, u"Numbering"},
    {1, 1023, u"Off"},
    {1, 0, u"Lettered"},
    {2, 1027, u"Lowercase"},
    {2, 1026, u"Uppercase"},
    {1, 1025, u"Numbered"},
    {1, 1028, u"Bulleted"},
    {1, 1029, u"Restart"},
    {1, 1030, u"Continue"},
    {1, 2000, u"Bulleted"},
});

constexpr auto kSpacingMenu = std::to_array<ResourceMenuRow>({
    {0, 0, u"Line Spacing"},
    {1, 1040, u"1.0"},
    {1, 1041, u"1.5"},
    {1, 1042, u"2.0"},
    {1, 1043, u"2.5"},
    {1, 1046, u"More..."},
    {1, 0, u""},
    {1, 1045, u"Drop line spacing"},
});

constexpr auto kColumnsMenu = std::to_array<ResourceMenuRow>({
    {0, 0, u"Columns settings"},
    {1, 1071, u"No columns"},
    {1, 0, u"Dynamic Columns"},
    {2, 1079, u"Auto height"},
    {2, 1070, u"Manual height"},
    {1, 0, u"Static Columns"},
    {2, 1072, u"2"},
    {2, 1073, u"3"},
    {2, 1074, u"4"},
    {2, 1075, u"5"},
    {2, 1076, u"6"},
    {2, 1077, u"More..."},
    {1, 0, u""},
    {1, 1078, u"Insert column", u"Ctrl+T"},
    {1, 1080, u"Column parameters..."},
});

constexpr auto kAttachmentMenu = std::to_array<ResourceMenuRow>({
    {0, 0, u"Change alignment"},
    {1, 1114, u"Left top"},
    {1, 1115, u"Center top"},
    {1, 1116, u"Right top"},
    {1, 1117, u"Left middle"},
    {1, 1118, u"Center middle"},
    {1, 1119, u"Right middle"},
    {1, 1120, u"Left bottom"},
    {1, 1121, u"Center bottom"},
    {1, 1122, u"Right bottom"},
});

/// For the reference product.
constexpr auto kSearchMenu = std::to_array<ResourceMenuRow>({
    {0, 0, u"RegulaDesk search"},
    {1, 1067, u"in numbers"},
    {1, 1068, u"in titles"},
    {1, 1069, u"in topics"},
});

constexpr auto kMenus = std::to_array<ResourceMenu>({
    {145, kNumberingMenu},
    {148, kSpacingMenu},
    {151, kColumnsMenu},
    {152, kAttachmentMenu},
    {228, kTextMenu},
    {235, kSearchMenu},
    {236, kCompactTextMenu},
});

}  // namespace

std::span<const ResourceMenu> menu_table() { return kMenus; }

void register_menus() { host::register_menus(kMenus); }

}  // namespace resources
