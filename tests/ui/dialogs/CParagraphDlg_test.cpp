#include "ui/dialogs/CParagraphDlg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/ui/dialogs/dialog_host.h"

namespace {

using mtext::format::line_spacing;

constexpr std::uint32_t kAtLeast = 1, kExactly = 2, kMultiple = 3;

class ParagraphDialog : public testing::Test {
 protected:
  const std::vector<std::u16string>& alerts() { return m_host.events().shown(); }

  DialogHost m_host;
};

CParagraphDlg dialog_of(std::uint32_t style, double value, double text_height = 2.5) {
  return {/*has_spacing=*/true, {.style = style, .value = value}, text_height};
}

TEST_F(ParagraphDialog, without_a_spacing_begins_with_multiple_of_one_switched_on) {
  const CParagraphDlg dialog(/*has_spacing=*/false, {}, 2.5);
  EXPECT_TRUE(dialog.isEnabled());
  EXPECT_EQ(dialog.style(), kMultiple);
  EXPECT_EQ(dialog.valueText(), u"1");
  EXPECT_EQ(dialog.result(), (line_spacing{.style = 3, .value = 1.0}));
}

TEST_F(ParagraphDialog, a_spacing_of_no_style_is_switched_off_and_gives_itself_back) {
  const auto dialog = dialog_of(0, 1.7);
  EXPECT_FALSE(dialog.isEnabled());
  EXPECT_EQ(dialog.result(), (line_spacing{.style = 0, .value = 1.0}));
}

TEST_F(ParagraphDialog, switched_on_without_a_style_chooses_multiple) {
  auto dialog = dialog_of(0, 1.0);
  dialog.setEnabled(true);
  EXPECT_EQ(dialog.style(), kMultiple);
  EXPECT_EQ(dialog.valueText(), u"1");
}

TEST_F(ParagraphDialog, lengths_are_shown_in_drawing_units_and_factors_as_they_are) {
  EXPECT_EQ(dialog_of(kExactly, 2.0).valueText(), u"5");
  EXPECT_EQ(dialog_of(kAtLeast, 1.2).valueText(), u"3");
  EXPECT_EQ(dialog_of(kMultiple, 1.2).valueText(), u"1.2");
}

TEST_F(ParagraphDialog, multiple_0_25_and_4_pass_and_0_24_fails) {
  auto dialog = dialog_of(kMultiple, 1.0);
  EXPECT_TRUE(dialog.leaveValue(u"0.25"));
  EXPECT_TRUE(dialog.leaveValue(u"4"));
  EXPECT_TRUE(alerts().empty());
  EXPECT_FALSE(dialog.leaveValue(u"0.24"));
  EXPECT_THAT(alerts(), testing::ElementsAre(u"Please provide a value within the range of 0.25 and 4."));
  EXPECT_EQ(dialog.valueText(), u"0.24");
  EXPECT_EQ(dialog.result().value, 4.0);
}

TEST_F(ParagraphDialog, with_text_height_2_5_and_exactly_the_limits_shown_are_0_625_and_10) {
  auto dialog = dialog_of(kExactly, 1.0);
  EXPECT_EQ(dialog.valueLimits().low, 0.625);
  EXPECT_EQ(dialog.valueLimits().high, 10);
  EXPECT_FALSE(dialog.leaveValue(u"10.1"));
  EXPECT_THAT(alerts(), testing::ElementsAre(u"Please provide a value within the range of 0.625 and 10."));
}

TEST_F(ParagraphDialog, switching_exactly_5_to_multiple_at_text_height_2_5_shows_2) {
  auto dialog = dialog_of(kExactly, 2.0);
  dialog.setStyle(kMultiple);
  EXPECT_EQ(dialog.valueText(), u"2");
  EXPECT_EQ(dialog.result(), (line_spacing{.style = 3, .value = 2.0}));
}

TEST_F(ParagraphDialog, a_length_stays_between_exactly_and_at_least) {
  auto dialog = dialog_of(kExactly, 2.0);
  dialog.setStyle(kAtLeast);
  EXPECT_EQ(dialog.valueText(), u"5");
}

TEST_F(ParagraphDialog, a_refused_number_is_converted_too_and_a_text_that_is_none_stays) {
  auto dialog = dialog_of(kMultiple, 1.0);
  dialog.leaveValue(u"8");
  dialog.setStyle(kExactly);
  EXPECT_EQ(dialog.valueText(), u"20");
  dialog.leaveValue(u"wide");
  dialog.setStyle(kMultiple);
  EXPECT_EQ(dialog.valueText(), u"wide");
}

TEST_F(ParagraphDialog, an_accepted_text_is_shown_as_the_number_is_written) {
  auto dialog = dialog_of(kMultiple, 1.0);
  EXPECT_TRUE(dialog.leaveValue(u" 1.50"));
  EXPECT_EQ(dialog.valueText(), u"1.5");
}

TEST_F(ParagraphDialog, an_empty_edit_passes_and_keeps_the_value) {
  auto dialog = dialog_of(kMultiple, 1.5);
  EXPECT_TRUE(dialog.leaveValue(u""));
  EXPECT_EQ(dialog.valueText(), u"");
  EXPECT_EQ(dialog.result().value, 1.5);
}

TEST_F(ParagraphDialog, what_is_no_number_to_its_end_is_refused) {
  auto dialog = dialog_of(kMultiple, 1.5);
  for (const char16_t* text : {u"abc", u"1.5x", u"1,5", u"1.5 ", u" ", u"nan", u"inf", u"1;5", u"--1"})
    EXPECT_FALSE(dialog.leaveValue(text));
  EXPECT_EQ(alerts().size(), 9u);
  EXPECT_EQ(dialog.result().value, 1.5);
}

TEST_F(ParagraphDialog, switched_off_refuses_nothing) {
  auto dialog = dialog_of(kMultiple, 1.5);
  dialog.setEnabled(false);
  EXPECT_TRUE(dialog.leaveValue(u"abc"));
  EXPECT_TRUE(alerts().empty());
  EXPECT_EQ(dialog.result(), (line_spacing{.style = 0, .value = 1.0}));
}

TEST_F(ParagraphDialog, switching_on_shows_the_value_that_was_kept) {
  auto dialog = dialog_of(kExactly, 2.0);
  dialog.leaveValue(u"99");
  dialog.setEnabled(false);
  dialog.setEnabled(true);
  EXPECT_EQ(dialog.valueText(), u"5");
}

TEST_F(ParagraphDialog, the_list_has_exactly_at_least_and_multiple_in_this_order) {
  EXPECT_THAT(dialogs::kSpacingStyles, testing::ElementsAre(kExactly, kAtLeast, kMultiple));
}

TEST_F(ParagraphDialog, is_cancelled_where_nobody_can_show_it) { EXPECT_FALSE(dialog_of(3, 1.0).doModal()); }

TEST_F(ParagraphDialog, is_shown_by_the_display_of_the_day) {
  ScriptedDisplay user;
  user.on_paragraph = [](CParagraphDlg& shown) { return shown.leaveValue(u"2"); };
  auto dialog = dialog_of(kMultiple, 1.0);
  EXPECT_TRUE(dialog.doModal());
  EXPECT_EQ(dialog.result().value, 2);
}

}  // namespace
