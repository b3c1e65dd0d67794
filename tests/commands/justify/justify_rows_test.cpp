#include "commands/justify/justify_rows.h"

#include <gtest/gtest.h>

#include "tests/commands/command_run.h"

TEST(JustifyRows, follow_a_rule_from_the_sixth_on) {
  ASSERT_EQ(justify_rows().size(), 15u);
  for (int index = 6; index < 15; ++index) {
    const justify_row& row = justify_rows()[static_cast<std::size_t>(index)];
    EXPECT_EQ(row.horizontal, index % 3);
    EXPECT_EQ(row.vertical, 5 - index / 3);
    EXPECT_EQ(row.attachment, index - 5);
  }
}

TEST(JustifyRows, are_found_by_the_modes_they_hold) {
  for (int index = 0; index < 15; ++index) {
    const justify_row& row = justify_rows()[static_cast<std::size_t>(index)];
    EXPECT_EQ(justify_index(row.horizontal, row.vertical), index);
  }
}

TEST(JustifyRows, on_the_baseline_have_their_own_order) {
  const int horizontal[] = {0, 3, 5, 1, 4, 2}, attachment[] = {1, 1, 1, 2, 5, 3};
  for (std::size_t index = 0; index < 6; ++index) {
    EXPECT_EQ(justify_rows()[index].horizontal, horizontal[index]);
    EXPECT_EQ(justify_rows()[index].vertical, OdDb::kTextBase);
    EXPECT_EQ(justify_rows()[index].attachment, attachment[index]);
  }
}

TEST(JustifyRows, left_align_and_fit_are_the_first_attachment_of_a_multi_line_text) {
  command_run run;
  const auto text = run.addText(u"one\\Ptwo", {10, 20, 0});
  for (const auto mode : {OdDb::kTextLeft, OdDb::kTextAlign, OdDb::kTextFit}) {
    ApplyMTextJustify(text, OdDb::kTextRight, OdDb::kTextBottom);
    EXPECT_EQ(text->attachment(), OdDb::kBottomRight);
    ApplyMTextJustify(text, mode, OdDb::kTextBase);
    EXPECT_EQ(text->attachment(), OdDb::kTopLeft);
    EXPECT_NEAR(text->location().distanceTo({10, 20, 0}), 0, 1e-9);
  }
}
