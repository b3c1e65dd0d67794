#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/profile.h"
#include "host/translate.h"
#include "tests/ui/toolbar/edited_with_toolbar.h"
#include "ui/controls/size_list.h"
#include "ui/toolbar/control_table.h"
#include "ui/toolbar/icon_pool.h"
#include "ui/toolbar/toolbar_profile.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The selections of `text`, as pairs of begin and end.
void select(edited_with_toolbar& text, const std::vector<mtext::marks::selection>& selections) {
  text.text().setSelections(selections);
  text.text().endOfEdit(/*relayout=*/false);
}

/// Sets the font of the parts from `begin` to `end`.
void set_font(edited_with_toolbar& text, std::size_t begin, std::size_t end, const char16_t* font,
              bool is_shx = false) {
  select(text, {mtext::marks::selection(begin, end)});
  mtext::format::string_partial change;
  change.font = font;
  change.is_shx = is_shx;
  text.text().applyFormat(change);
  text.text().endOfEdit(/*relayout=*/true);
  text.text().notifyWatchers();
}

}  // namespace

TEST(Toolbar, two_selections_of_different_fonts_leave_the_font_box_empty_and_the_toggles_act_on_both) {
  edited_with_toolbar text("abcd|");
  set_font(text, 0, 2, u"Arial");
  set_font(text, 2, 4, u"Courier");
  select(text, {mtext::marks::selection(2, 3)});
  EXPECT_EQ(text.bar().fonts().edit().text(), u"Courier");
  select(text, {mtext::marks::selection(0, 1), mtext::marks::selection(3, 4)});
  EXPECT_FALSE(text.bar().fonts().selected());
  EXPECT_EQ(text.bar().fonts().edit().text(), u"");
  text.press(1003);
  EXPECT_EQ(text.codes(), "{\\fArial|b0|i0|c0|p0;\\La\\lb\\fCourier|b0|i0|c0|p0;c\\Ld}");
  EXPECT_TRUE(text.isChecked(1003));
}

TEST(Toolbar, a_mixed_bold_toggles_to_bold_on_all_of_the_selection_and_a_second_press_to_none) {
  edited_with_toolbar text("[a]bc");
  text.press(1001);
  select(text, {mtext::marks::selection(0, 3)});
  EXPECT_FALSE(text.isChecked(1001));
  text.press(1001);
  EXPECT_TRUE(text.isChecked(1001));
  EXPECT_EQ(text.codes(), "{\\f|b1|i0|c0|p0;abc}");
  text.press(1001);
  EXPECT_FALSE(text.isChecked(1001));
  EXPECT_EQ(text.codes(), "abc");
}

TEST(Toolbar, a_size_at_or_below_a_ten_thousandth_does_nothing_and_its_text_stays_until_the_next_refresh) {
  edited_with_toolbar text("[ab]");
  auto& sizes = text.bar().sizes();
  for (const char16_t* typed : {u"0.0001", u"0", u"-3", u"abc"}) {
    text.enter(sizes.edit(), typed);
    EXPECT_EQ(text.codes(), "ab");
    EXPECT_EQ(sizes.edit().text(), typed);
  }
  select(text, {mtext::marks::selection(1)});
  EXPECT_EQ(sizes.edit().text(), u"2.5");
}

TEST(Toolbar, the_numbering_check_is_off_for_a_selection_of_which_a_part_has_no_list) {
  edited_with_toolbar text("1.→a¶b|");
  select(text, {mtext::marks::selection(3)});
  EXPECT_TRUE(text.isChecked(1049));
  select(text, {mtext::marks::selection(3, 5)});
  EXPECT_FALSE(text.isChecked(1049));
}

TEST(Toolbar, position_keys_lying_off_the_screen_are_used_as_they_are) {
  edited_with_toolbar text("a|");
  EXPECT_EQ(text.window().at.x, 200);
  EXPECT_EQ(text.window().at.y, 300);
  toolbar::keep_place({-5000, 99999});
  noting_window other;
  const CMTextEdit bar(text.session(), other, {});
  EXPECT_EQ(other.at.x, -5000);
  EXPECT_EQ(other.at.y, 99999);
}

TEST(Toolbar, the_place_is_kept_in_the_profile_when_it_goes) {
  edited_with_toolbar text("a|");
  text.window().at = {12, 34};
  text.closeBar();
  EXPECT_EQ(text.application().profile().number(u"SCRIBE", u"ptpos.x", 0), 12);
  EXPECT_EQ(text.application().profile().number(u"SCRIBE", u"ptpos.y", 0), 34);
}

TEST(Toolbar, a_101st_icon_raises_icons_pool_full) {
  toolbar::icon_pool<int> pool;
  for (int number = 0; number < 100; ++number) pool.add(number);
  try {
    pool.add(100);
    FAIL() << "the pool took one more";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "Icons pool full");
  }
  EXPECT_EQ(pool.size(), 100U);
}

TEST(Toolbar, the_next_toolbar_of_the_same_run_starts_with_the_sizes_of_the_last) {
  controls::size_list().clear();
  edited_with_toolbar first("[ab]");
  first.enter(first.bar().sizes().edit(), u"7");
  first.enter(first.bar().sizes().edit(), u"3.5");
  first.closeBar();
  edited_with_toolbar second("a|");
  EXPECT_THAT(second.bar().sizes().sizes(), ElementsAre(3.5F, 7.0F));
  controls::size_list().clear();
}

/// A toolkit that reports whatever is put into a box as if the user had done it.
TEST(Toolbar, a_refresh_never_acts_as_a_users_change) {
  edited_with_toolbar text("[a]bcd");
  text.press(1001);
  CMTextEdit& bar = text.bar();
  int echoes = 0;
  bool echoing = false;
  const auto echo = [&](const std::function<void()>& report) {
    return [&, report] {
      if (std::exchange(echoing, true)) return;
      ++echoes;
      report();
      echoing = false;
    };
  };
  bar.colors().shown = echo([&bar] { bar.colors().choose(bar.colors().selected().value_or(1)); });
  for (CEditEx* edit :
       {&bar.oblique().edit(), &bar.widthFactor().edit(), &bar.sizes().edit(), &bar.fonts().edit()})
    edit->shown = echo([edit] { edit->enter(); });
  const std::string codes = text.codes();
  const auto steps = text.steps();
  select(text, {mtext::marks::selection(2, 3)});
  EXPECT_GE(echoes, 5);
  EXPECT_EQ(text.codes(), codes);
  EXPECT_EQ(text.steps(), steps);
}

TEST(Toolbar, a_button_that_is_pressed_while_it_shows_the_text_does_nothing) {
  edited_with_toolbar text("[a]b");
  bool pressed = false;
  text.bar().sizes().edit().shown = [&] {
    pressed = true;
    text.bar().press(1003);
  };
  select(text, {mtext::marks::selection(2)});
  EXPECT_TRUE(pressed);
  EXPECT_EQ(text.codes(), "ab");
}

TEST(Toolbar, bold_and_italic_are_disabled_for_a_shape_font) {
  edited_with_toolbar text("ab|");
  set_font(text, 0, 2, u"txt.shx", /*is_shx=*/true);
  EXPECT_FALSE(text.isEnabled(1001));
  EXPECT_FALSE(text.isEnabled(1002));
  EXPECT_TRUE(text.isEnabled(1003));
  EXPECT_EQ(text.bar().fonts().selected(), 0U);
}

TEST(Toolbar, a_font_that_is_not_in_the_list_is_added_once_and_marked_as_missing) {
  edited_with_toolbar text("ab|");
  set_font(text, 0, 1, u"NoSuchTypeface");
  set_font(text, 1, 2, u"NoSuchTypeface");
  auto& rows = text.bar().fonts().rows();
  ASSERT_EQ(rows.back().text, u"NoSuchTypeface");
  EXPECT_FALSE(rows.back().item.installed);
  EXPECT_EQ(std::ranges::count(rows, u"NoSuchTypeface", [](const auto& row) { return row.text; }), 1);
}

TEST(Toolbar, a_mixed_value_shows_nothing) {
  edited_with_toolbar text("[a]b");
  text.enter(text.bar().sizes().edit(), u"5");
  text.enter(text.bar().oblique().edit(), u"15");
  text.enter(text.bar().widthFactor().edit(), u"0.8");
  text.bar().colors().choose(2);
  EXPECT_EQ(text.bar().sizes().edit().text(), u"5");
  EXPECT_EQ(text.bar().oblique().edit().text(), u"15.000");
  EXPECT_EQ(text.bar().widthFactor().edit().text(), u"0.800");
  EXPECT_EQ(text.bar().colors().selected(), 2U);
  select(text, {mtext::marks::selection(0, 2)});
  EXPECT_EQ(text.bar().sizes().edit().text(), u"");
  EXPECT_EQ(text.bar().oblique().edit().text(), u"");
  EXPECT_EQ(text.bar().widthFactor().edit().text(), u"");
  EXPECT_FALSE(text.bar().colors().selected());
}

TEST(Toolbar, a_text_without_a_color_of_its_own_shows_that_of_its_entity) {
  edited_with_toolbar text("a|b");
  EXPECT_EQ(text.bar().colors().selected(), 0U);
}

TEST(Toolbar, at_a_caret_a_toggle_shows_how_the_next_letter_is_typed) {
  edited_with_toolbar text("a|");
  text.press(1003);
  EXPECT_TRUE(text.isChecked(1003));
  text.keys("b");
  EXPECT_TRUE(text.isChecked(1003));
  text.press(1003);
  EXPECT_FALSE(text.isChecked(1003));
  text.keys("c");
  EXPECT_EQ(text.codes(), "a{\\Lb}c");
}

TEST(Toolbar, the_keys_for_letters_toggle_in_the_text_and_the_buttons_follow) {
  const std::pair<const char*, int> keys[] = {
      {"Ctrl+b", 1001}, {"Ctrl+i", 1002}, {"Ctrl+u", 1003}, {"Ctrl+o", 1004}};
  for (const auto& [key, id] : keys) {
    edited_with_toolbar text("[ab]");
    text.keys(key);
    EXPECT_TRUE(text.isChecked(id)) << key;
    EXPECT_THAT(text.steps(), ElementsAre(kUndoToolbar)) << key;
    text.keys(key);
    EXPECT_FALSE(text.isChecked(id)) << key;
    EXPECT_EQ(text.codes(), "ab") << key;
  }
}

TEST(Toolbar, alignment_checks_one_button_at_most) {
  edited_with_toolbar text("[ab]");
  const auto checked = [&text] {
    std::vector<int> down;
    for (const int id : {1005, 1006, 1007, 1010, 1011})
      if (text.isChecked(id)) down.push_back(id);
    return down;
  };
  EXPECT_THAT(checked(), IsEmpty());
  text.press(1006);
  EXPECT_THAT(checked(), ElementsAre(1006));
  text.press(1010);
  EXPECT_THAT(checked(), ElementsAre(1010));
}

TEST(Toolbar, case_and_search_are_for_selected_text) {
  edited_with_toolbar text("a[b]");
  for (const int id : {1032, 1039, 2}) EXPECT_TRUE(text.isEnabled(id)) << id;
  select(text, {mtext::marks::selection(1)});
  for (const int id : {1032, 1039, 2}) EXPECT_FALSE(text.isEnabled(id)) << id;
}

TEST(Toolbar, stack_is_for_what_can_be_stacked_and_down_where_all_is) {
  edited_with_toolbar text("a[1/2]");
  EXPECT_TRUE(text.isEnabled(1014));
  EXPECT_FALSE(text.isChecked(1014));
  text.press(1014);
  EXPECT_TRUE(text.isChecked(1014));
  select(text, {mtext::marks::selection(0, 2)});
  EXPECT_FALSE(text.isChecked(1014));
  EXPECT_TRUE(text.isEnabled(1014));
  select(text, {mtext::marks::selection(0, 1)});
  EXPECT_FALSE(text.isEnabled(1014));
}

TEST(Toolbar, raised_text_is_put_back_by_a_second_press_and_lowered_by_the_other_button) {
  edited_with_toolbar text("a[2]");
  text.press(1051);
  EXPECT_TRUE(text.isChecked(1051));
  EXPECT_FALSE(text.isChecked(1052));
  text.press(1052);
  EXPECT_TRUE(text.isChecked(1052));
  EXPECT_EQ(text.codes(), "a{\\H0.7x;\\S^2;}");
  text.press(1052);
  EXPECT_EQ(text.codes(), "a2");
  select(text, {mtext::marks::selection(1)});
  EXPECT_FALSE(text.isEnabled(1051));
}

TEST(Toolbar, it_tells_its_window_only_of_buttons_that_look_another_way) {
  edited_with_toolbar text("[a]b");
  text.window().buttons.clear();
  text.press(1003);
  EXPECT_THAT(text.window().buttons, Contains(1003));
  EXPECT_THAT(text.window().buttons, testing::Not(Contains(1001)));
}

TEST(Toolbar, what_an_operation_throws_is_told_and_the_session_goes_on) {
  edited_with_toolbar text("[ab]");
  text.bar().styles().addRow({u"gone", OdDbObjectId()});
  text.bar().styles().choose(text.bar().styles().rows().size() - 1);
  EXPECT_EQ(text.codes(), "ab");
  text.press(1003);
  EXPECT_EQ(text.codes(), "{\\Lab}");
}

TEST(ControlTable, every_control_has_its_words_and_every_button_but_ok_an_icon) {
  edited_with_toolbar text("a|");
  for (const toolbar_control& control : toolbar::control_table()) {
    EXPECT_FALSE(host::resource_string(control.text).empty()) << control.id;
    const bool needs_icon = toolbar::is_button(control) && control.id != 1;
    EXPECT_EQ(needs_icon || control.kind == control_kind::spin_edit, control.icon != 0) << control.id;
  }
  EXPECT_THROW(toolbar::control_of(4711), std::invalid_argument);
}

TEST(ControlTable, the_letters_come_in_two_sets) {
  const auto& bold = toolbar::control_of(1001);
  EXPECT_EQ(toolbar::icon_of(bold, /*english_letters=*/false), 116);
  EXPECT_EQ(toolbar::icon_of(bold, /*english_letters=*/true), 230);
  EXPECT_EQ(toolbar::icon_of(toolbar::control_of(1005), /*english_letters=*/true), 121);
}
