#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/regula_desk.h"
#include "host/sibling.h"
#include "tests/ui/toolbar/edited_with_toolbar.h"
#include "ui/dialogs/CMTextColumnsDlg.h"
#include "ui/dialogs/CParagraphDlg.h"
#include "ui/dialogs/dialog_display.h"
#include "ui/resources/menus.h"
#include "ui/toolbar/attachment_menu.h"
#include "ui/toolbar/column_choice.h"
#include "ui/toolbar/columns_menu.h"
#include "ui/toolbar/numbering_menu.h"
#include "ui/toolbar/spacing_menu.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The commands of the rows that are checked, from the top down; 0 for a row that opens a sub-menu.
std::vector<int> checked(const HostMenu& menu) {
  std::vector<int> commands;
  for (const HostMenuItem* row : host::all_rows(menu))
    if (row->checked) commands.push_back(row->command);
  return commands;
}

std::vector<int> commands(const HostMenu& menu) {
  std::vector<int> all;
  for (const HostMenuItem* row : host::all_rows(menu))
    if (row->command != 0) all.push_back(row->command);
  return all;
}

mtext::convert_info with_columns(const mtext::column_settings& columns) {
  mtext::convert_info info;
  info.columns = columns;
  return info;
}

/// Dialogs that a test answers.
class answering_display : public DialogDisplay {
 public:
  bool show(CParagraphDlg& dialog) override {
    ++shown;
    if (accept) dialog.setEnabled(true), dialog.setStyle(2), dialog.leaveValue(u"5");
    return accept;
  }
  bool show(CMTextColumnsDlg& dialog) override {
    ++shown;
    began = dialog.values();
    if (accept) dialog.setType(type);
    return accept;
  }
  bool show(CSymbolDlg&) override { return false; }
  bool show(CCaseDlg&) override { return false; }

  bool accept = true;
  std::uint32_t type = 1;
  int shown = 0;
  column_values began;
};

}  // namespace

TEST(NumberingMenu, offers_lists_and_their_bullets_without_restart_and_continue) {
  const edited_with_toolbar text("a|");
  const HostMenu menu = toolbar::numbering_menu(text.text());
  EXPECT_THAT(commands(menu), ElementsAre(1023, 1027, 1026, 1025, 1028, 2001));
  EXPECT_EQ(menu.back().rows.size(), toolbar::bullets().size());
  EXPECT_EQ(menu.back().rows[0].text, u"\u00B7");
}

TEST(NumberingMenu, checks_the_kind_that_all_paragraphs_have) {
  EXPECT_THAT(checked(toolbar::numbering_menu(edited_with_toolbar("a|").text())), ElementsAre(1023));
  EXPECT_THAT(checked(toolbar::numbering_menu(edited_with_toolbar("1.→a|").text())), ElementsAre(1025));
  EXPECT_THAT(checked(toolbar::numbering_menu(edited_with_toolbar("a.→a|").text())), ElementsAre(0, 1027));
  EXPECT_THAT(checked(toolbar::numbering_menu(edited_with_toolbar("A.→a|").text())), ElementsAre(0, 1026));
  EXPECT_THAT(checked(toolbar::numbering_menu(edited_with_toolbar("·→a|").text())), ElementsAre(1028, 2001));
  EXPECT_THAT(checked(toolbar::numbering_menu(edited_with_toolbar("1.→[a¶b]").text())), IsEmpty());
}

TEST(NumberingMenu, each_row_makes_its_list) {
  const std::pair<int, const char*> rows[] = {
      {1025, "1.→ab|"}, {1026, "A.→ab|"}, {1027, "a.→ab|"}, {1028, "·→ab|"}, {2001, "·→ab|"}};
  for (const auto& [command, drawn] : rows) {
    edited_with_toolbar text("ab|");
    text.press(1049, command);
    EXPECT_EQ(text.drawn(), drawn) << command;
    EXPECT_TRUE(text.isChecked(1049)) << command;
    text.press(1049, 1023);
    EXPECT_EQ(text.drawn(), "ab|") << command;
    EXPECT_FALSE(text.isChecked(1049)) << command;
  }
}

TEST(NumberingMenu, letters_change_their_case_within_their_alphabet) {
  edited_with_toolbar text("b.→x|");
  text.press(1049, 1026);
  EXPECT_EQ(text.drawn(), "A.→x|");
}

TEST(NumberingMenu, a_menu_that_was_closed_changes_nothing) {
  edited_with_toolbar text("ab|");
  text.press(1049);
  EXPECT_EQ(text.drawn(), "ab|");
  EXPECT_THAT(text.steps(), IsEmpty());
}

TEST(ToolbarMenus, open_at_their_control) {
  edited_with_toolbar text("ab|");
  text.press(1054);
  EXPECT_EQ(text.application().window().lastMenuPlace().x, 1054);
  EXPECT_EQ(text.application().window().lastMenuPlace().y, 40);
}

TEST(SpacingMenu, checks_the_factor_within_a_hundredth) {
  edited_with_toolbar text("ab|");
  EXPECT_THAT(checked(toolbar::spacing_menu(text.text())), IsEmpty());
  text.text().applyParagraph({.spacing = mtext::format::line_spacing{3, 1.509}});
  text.text().endOfEdit(true);
  EXPECT_THAT(checked(toolbar::spacing_menu(text.text())), ElementsAre(1041));
  text.text().applyParagraph({.spacing = mtext::format::line_spacing{2, 1.5}});
  text.text().endOfEdit(true);
  EXPECT_THAT(checked(toolbar::spacing_menu(text.text())), IsEmpty());
}

TEST(SpacingMenu, drops_a_spacing_and_asks_for_more) {
  answering_display display;
  const dialogs::ShowingDialogs showing(display);
  edited_with_toolbar text("ab|");
  text.press(1048, 1046);
  EXPECT_EQ(text.text().currentParagraph().spacing, (mtext::format::line_spacing{2, 2.0}));
  text.press(1048, 1045);
  EXPECT_EQ(text.text().currentParagraph().spacing, (mtext::format::line_spacing{0, 1.0}));
}

TEST(SpacingMenu, a_cancelled_dialog_changes_nothing) {
  answering_display display;
  display.accept = false;
  const dialogs::ShowingDialogs showing(display);
  edited_with_toolbar text("ab|");
  text.press(1048, 1046);
  EXPECT_EQ(display.shown, 1);
  EXPECT_THAT(text.steps(), IsEmpty());
}

TEST(AttachmentMenu, checks_the_place_of_the_text_and_moves_it) {
  for (int place = 0; place < 9; ++place) {
    edited_with_toolbar text("ab|");
    text.press(1054, 1114 + place);
    EXPECT_EQ(text.text().attachment(), place);
    EXPECT_THAT(checked(toolbar::attachment_menu(text.text())), ElementsAre(1114 + place));
  }
}

TEST(ColumnsMenu, checks_the_kind_of_columns) {
  const auto row = [](std::uint32_t kind, std::size_t heights) {
    return toolbar::checked_command({.kind = kind, .heights = std::vector<double>(heights, 10.0)});
  };
  EXPECT_EQ(row(0, 1), 1071);
  EXPECT_EQ(row(0, 2), 1072);
  EXPECT_EQ(row(0, 6), 1076);
  EXPECT_EQ(row(0, 7), 1077);
  EXPECT_EQ(row(1, 1), 1070);
  EXPECT_EQ(row(2, 1), 1079);
}

TEST(ColumnsMenu, two_columns_share_the_width_of_the_text) {
  edited_with_toolbar text("ab|", with_columns({.width = 130, .heights = {15}}));
  text.press(1053, 1072);
  const auto& columns = text.text().text().info.columns;
  EXPECT_EQ(columns.width, 60);
  EXPECT_EQ(columns.gutter, 10);
  EXPECT_THAT(columns.heights, ElementsAre(15, 15));
  text.press(1012);
  EXPECT_EQ(columns.width, 130);
}

TEST(ColumnsMenu, more_begins_with_seven_and_takes_what_the_dialog_says) {
  answering_display display;
  const dialogs::ShowingDialogs showing(display);
  edited_with_toolbar text("ab|", with_columns({.width = 130, .heights = {15}}));
  text.press(1053, 1077);
  EXPECT_EQ(display.began.type, 1U);
  EXPECT_EQ(display.began.auto_height, 1);
  EXPECT_EQ(display.began.count, 7U);
  EXPECT_EQ(display.began.column_width, 10);
  EXPECT_EQ(display.began.total, 130);
  EXPECT_EQ(text.text().text().info.columns.heights.size(), 7U);
}

TEST(ColumnsMenu, more_of_a_text_without_a_width_begins_with_the_box_and_wide_gutters) {
  const auto info = with_columns({.width = 0, .heights = {0}});
  const edited_with_toolbar text("ab|", info);
  const column_values values = toolbar::more_columns(text.text().text(), 42);
  EXPECT_EQ(values.column_width, 42);
  EXPECT_EQ(values.gutter, 12.5);
}

TEST(ColumnsMenu, parameters_begin_with_the_columns_as_they_are) {
  answering_display display;
  const dialogs::ShowingDialogs showing(display);
  edited_with_toolbar text("ab|", with_columns({.width = 30, .gutter = 5, .heights = {15, 15}}));
  display.type = 0;
  text.press(1053, 1080);
  EXPECT_EQ(display.began, (column_values{.type = 1,
                                          .count = 2,
                                          .height = 15,
                                          .column_width = 30,
                                          .gutter = 5,
                                          .total = 65,
                                          .text_height = 2.5}));
  const auto& columns = text.text().text().info.columns;
  EXPECT_EQ(columns.kind, 0U);
  EXPECT_EQ(columns.width, 65);
  EXPECT_EQ(columns.gutter, 13);
  EXPECT_THAT(columns.heights, ElementsAre(15));
}

TEST(ColumnsMenu, dynamic_columns_of_the_dialog_are_automatic_with_one_height_or_manual_with_all) {
  column_values values{
      .type = 2, .auto_height = 1, .count = 3, .height = 20, .column_width = 30, .gutter = 5};
  EXPECT_EQ(toolbar::columns_of(values).kind, 2U);
  EXPECT_THAT(toolbar::columns_of(values).heights, ElementsAre(20));
  values.auto_height = 0;
  EXPECT_EQ(toolbar::columns_of(values).kind, 1U);
  EXPECT_THAT(toolbar::columns_of(values).heights, ElementsAre(20, 20, 20));
}

TEST(ColumnsMenu, inserting_a_column_adds_one_for_each_caret) {
  edited_with_toolbar text("a|b|", with_columns({.width = 30, .gutter = 5, .heights = {15}}));
  text.press(1053, 1078);
  EXPECT_EQ(text.text().text().info.columns.heights.size(), 3U);
  EXPECT_EQ(text.text().frame().width, 100);
  EXPECT_EQ(text.drawn(), "a‖|b‖|");
}

TEST(ColumnsMenu, at_a_hundred_columns_another_is_refused_with_an_alert) {
  edited_with_toolbar text(
      "ab|", with_columns({.width = 30, .gutter = 5, .heights = std::vector<double>(100, 15.0)}));
  text.press(1053, 1078);
  EXPECT_THAT(text.application().events().shown(), ElementsAre(u"Value must be between 2 and 100"));
  EXPECT_EQ(text.drawn(), "ab|");
  EXPECT_THAT(text.steps(), IsEmpty());
}

namespace {

/// The reference product, as a test plays it.
class searching_desk : public CKrUnknownImpl<IRegulaDesk> {
 public:
  int showMenu(HostWindow*, const char16_t*, const HostMenu&, int, int, int) override { return 0; }
  void search(HostWindow*, const char16_t* text, int x, int y) override {
    wanted = text;
    place = {x, y};
  }

  std::u16string wanted;
  HostPixel place;
};

}  // namespace

TEST(SearchButton, has_the_product_search_for_what_is_selected_below_the_button) {
  searching_desk desk;
  const host::SiblingOffer offer(desk);
  edited_with_toolbar text("one [two] three");
  text.press(2);
  EXPECT_EQ(desk.wanted, u"two");
  EXPECT_EQ(desk.place.x, 2);
  EXPECT_EQ(desk.place.y, 40);
  EXPECT_THAT(text.steps(), IsEmpty());
}

TEST(SearchButton, takes_the_word_at_the_caret_where_nothing_is_selected) {
  searching_desk desk;
  const host::SiblingOffer offer(desk);
  edited_with_toolbar text("one tw|o three");
  text.press(2);
  EXPECT_EQ(desk.wanted, u"two");
}

TEST(SearchButton, without_the_product_the_user_is_told) {
  edited_with_toolbar text("[a]");
  text.press(2);
  EXPECT_THAT(text.application().events().shown(),
              ElementsAre(u"RegulaDesk is not installed on your system."));
}

TEST(ResourceMenus, both_menus_of_the_right_button_differ_in_one_row) {
  const auto table = resources::menu_table();
  const auto rows = [&table](int number) {
    return std::ranges::find(table, number, &ResourceMenu::number)->rows;
  };
  int differences = 0;
  for (std::size_t at = 0; at < rows(228).size(); ++at)
    differences += std::u16string(rows(228)[at].text) != rows(236)[at].text;
  EXPECT_EQ(differences, 1);
}

TEST(ResourceMenus, the_search_of_the_product_has_three_scopes) {
  EXPECT_THAT(commands(host::resource_menu(235)), ElementsAre(1067, 1068, 1069));
}
