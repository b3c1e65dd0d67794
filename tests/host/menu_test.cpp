#include "host/menu.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <stdexcept>

#include "host/translate.h"
#include "host/windowless/window.h"
#include "od/base/unicode.h"
#include "ui/resources/menus.h"

namespace {

constexpr auto kTree = std::to_array<ResourceMenuRow>({
    {0, 1, u"One", u"Ctrl+1"},
    {0, 0, u""},
    {0, 0, u"More"},
    {1, 2, u"Two"},
    {1, 0, u"Most"},
    {2, 3, u"Three"},
    {0, 4, u"Four"},
});

HostMenu tree() {
  constexpr auto table = std::to_array<ResourceMenu>({{9001, kTree}});
  host::register_menus(table);
  return host::resource_menu(9001);
}

/// Rows as `One, -, More(Two, Three)`.
std::string drawn(const HostMenu& menu) {
  std::string result;
  for (const HostMenuItem& row : menu) {
    if (!result.empty()) result += ", ";
    result += row.isSeparator() ? "-" : odToUtf8(row.text);
    if (!row.rows.empty()) result += "(" + drawn(row.rows) + ")";
  }
  return result;
}

HostMenu without(std::set<int> commands) {
  HostMenu menu = tree();
  host::remove_rows(menu, [&](const HostMenuItem& row) { return commands.contains(row.command); });
  return menu;
}

}  // namespace

TEST(Menu, deeper_rows_make_the_sub_menu_of_the_row_before_them) {
  EXPECT_EQ(drawn(tree()), "One, -, More(Two, Most(Three)), Four");
  EXPECT_EQ(tree()[0].hint, u"Ctrl+1");
}

TEST(Menu, texts_are_translated) {
  constexpr auto german = std::to_array<TranslatedText>({{u"Two", u"Zwei"}});
  host::set_translations(german);
  EXPECT_EQ(drawn(tree()), "One, -, More(Zwei, Most(Three)), Four");
  host::set_translations({});
}

TEST(Menu, a_number_that_no_table_has_is_an_error_that_names_it) {
  try {
    host::resource_menu(99999);
    FAIL() << "a menu was found";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "resource_menu: there is no menu 99999");
  }
}

TEST(Menu, a_number_cannot_have_two_tables) {
  constexpr auto first = std::to_array<ResourceMenuRow>({{0, 1, u"One"}});
  constexpr auto second = std::to_array<ResourceMenuRow>({{0, 2, u"One"}});
  EXPECT_NO_THROW(host::register_menus(std::to_array<ResourceMenu>({{9002, first}})));
  EXPECT_NO_THROW(host::register_menus(std::to_array<ResourceMenu>({{9002, first}})));
  EXPECT_THROW(host::register_menus(std::to_array<ResourceMenu>({{9002, second}})), std::invalid_argument);
}

TEST(Menu, a_row_without_a_row_to_stand_under_is_an_error) {
  constexpr auto floating = std::to_array<ResourceMenuRow>({{1, 1, u"One"}});
  constexpr auto leaping = std::to_array<ResourceMenuRow>({{0, 1, u"One"}, {2, 2, u"Two"}});
  EXPECT_THROW(host::register_menus(std::to_array<ResourceMenu>({{9003, floating}})), std::invalid_argument);
  EXPECT_THROW(host::register_menus(std::to_array<ResourceMenu>({{9004, leaping}})), std::invalid_argument);
}

TEST(Menu, all_rows_come_from_the_top_down) {
  std::string seen;
  const HostMenu menu = tree();
  for (const HostMenuItem* row : host::all_rows(menu)) seen += odToUtf8(row->text) + ".";
  EXPECT_EQ(seen, "One..More.Two.Most.Three.Four.");
}

TEST(Menu, removed_rows_take_their_idle_separators_and_empty_sub_menus_along) {
  EXPECT_EQ(drawn(without({1})), "More(Two, Most(Three)), Four");
  EXPECT_EQ(drawn(without({3})), "One, -, More(Two), Four");
  EXPECT_EQ(drawn(without({2, 3, 4})), "One");
  EXPECT_EQ(drawn(without({1, 2, 3, 4})), "");
}

TEST(ResourceMenus, every_menu_has_a_number_of_its_own_in_ascending_order) {
  int before = 0;
  for (const ResourceMenu& menu : resources::menu_table()) {
    EXPECT_GT(menu.number, before);
    before = menu.number;
  }
}

TEST(ResourceMenus, every_menu_is_found_at_the_host_under_its_number) {
  resources::register_menus();
  for (const ResourceMenu& menu : resources::menu_table())
    EXPECT_EQ(host::all_rows(host::resource_menu(menu.number)).size(), menu.rows.size()) << menu.number;
}

TEST(ResourceMenus, every_row_is_a_separator_or_opens_a_sub_menu_or_has_a_command_of_its_own) {
  resources::register_menus();
  for (const ResourceMenu& resource : resources::menu_table()) {
    std::set<int> commands;
    const HostMenu menu = host::resource_menu(resource.number);
    for (const HostMenuItem* row : host::all_rows(menu)) {
      const bool opens = !row->rows.empty(), runs = row->command != 0;
      EXPECT_EQ(row->isSeparator() + opens + runs, 1) << odToUtf8(row->text) << row->command;
      EXPECT_TRUE(!runs || commands.insert(row->command).second) << row->command;
    }
  }
}

TEST(ResourceMenus, the_menus_of_a_text_have_one_sub_menu_with_these_commands) {
  resources::register_menus();
  for (const int number : {228, 236}) {
    const HostMenu menu = host::resource_menu(number);
    ASSERT_EQ(menu.size(), 1u);
    std::set<int> commands;
    for (const HostMenuItem* row : host::all_rows(menu[0].rows))
      if (row->command != 0) commands.insert(row->command);
    EXPECT_EQ(commands,
              (std::set<int>{1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1009, 1049, 1052, 1054, 1056}));
  }
}

TEST(ResourceMenus, the_fields_of_a_compact_session_are_updated_together_by_their_text) {
  resources::register_menus();
  const auto text_of = [](int number, int command) {
    const HostMenu menu = host::resource_menu(number);
    for (const HostMenuItem* row : host::all_rows(menu))
      if (row->command == command) return odToUtf8(row->text);
    return std::string();
  };
  EXPECT_EQ(text_of(228, 1054), "Update field");
  EXPECT_EQ(text_of(236, 1054), "Update fields");
  for (const int number : {228, 236}) {
    EXPECT_EQ(text_of(number, 1049), "Insert field");
    EXPECT_EQ(text_of(number, 1052), "Edit field");
    EXPECT_EQ(text_of(number, 1056), "Convert field to text");
  }
}

TEST(WindowlessWindow, a_menu_gives_the_row_that_was_chosen_by_number_or_by_text_at_any_depth) {
  WindowlessWindow window;
  window.choose(4);
  window.choose(u"three");
  EXPECT_EQ(window.popupMenu(tree(), {3, 5}), 4);
  EXPECT_EQ(window.popupMenu(tree(), {3, 5}), 3);
  EXPECT_EQ(window.lastMenuPlace().y, 5);
  EXPECT_EQ(drawn(window.lastMenu()), drawn(tree()));
}

TEST(WindowlessWindow, a_menu_without_a_choice_is_closed_again) {
  WindowlessWindow window;
  EXPECT_EQ(window.popupMenu(tree(), {}), 0);
  EXPECT_TRUE(window.refused().empty());
}

TEST(WindowlessWindow, what_a_person_could_not_choose_is_refused) {
  HostMenu menu = tree();
  menu[0].enabled = false;
  WindowlessWindow window;
  for (const char16_t* entry : {u"One", u"More", u"Five", u"0"}) {
    window.choose(std::u16string_view(entry));
    EXPECT_EQ(window.popupMenu(menu, {}), 0);
    EXPECT_EQ(window.refused().back(), entry);
  }
}
