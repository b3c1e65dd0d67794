#include <gtest/gtest.h>

#include "commands/justify/justify_in_place.h"
#include "commands/justify/tjust_command.h"
#include "tests/commands/command_run.h"

namespace {

constexpr int kBottomRight = 12;

/// Runs the command over what was selected by a press, with a keyword.
int justify(command_run& run, const OdGePoint3d& pressed, std::u16string_view keyword) {
  run.application.input().click(pressed);
  run.application.input().line(u"");
  run.application.input().line(keyword);
  return run.run<CJust>();
}

OdDbTextPtr single(const OdDbObjectId& id) { return odCast<OdDbText>(id.openObject()); }
OdDbMTextPtr multi(const OdDbObjectId& id) { return odCast<OdDbMText>(id.openObject()); }

OdGePoint3d corner_of(const OdDbMText& text) {
  const int place = text.attachment() - 1;
  return text.location() +
         OdGeVector3d(-0.5 * (place % 3) * text.actualWidth(), 0.5 * (place / 3) * text.actualHeight(), 0);
}

}  // namespace

TEST(TJust, a_left_text_set_to_bottom_right_stays_on_the_sheet_and_hangs_on_its_right_end) {
  command_run run;
  const OdDbObjectId id = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
  OdArray<OdGePoint3d> before, after;
  single(id)->getBoundingPoints(before);
  EXPECT_EQ(justify(run, {10.5, 20.5, 0}, u"BR"), kCommandDone);
  const OdDbTextPtr text = single(id);
  text->getBoundingPoints(after);
  for (unsigned i = 0; i < 4; ++i) EXPECT_TRUE(before[i].isEqualTo(after[i])) << i;
  EXPECT_EQ(text->horizontalMode(), OdDb::kTextRight);
  EXPECT_EQ(text->verticalMode(), OdDb::kTextBottom);
  EXPECT_NEAR(text->alignmentPoint().x, before[1].x, 1e-9);
}

TEST(TJust, every_keyword_and_back_leaves_a_text_where_it_was) {
  command_run run;
  const auto text = run.addLineOfText(u"Hgp", {10, 20, 0});
  text->setRotation(0.3);
  for (int from = 0; from <= kBottomRight; ++from) {
    for (int to = 0; to <= kBottomRight; ++to) {
      justify_in_place(*text, justification_at(from));
      const OdGePoint3d before = text->position();
      justify_in_place(*text, justification_at(to));
      EXPECT_TRUE(text->position().isEqualTo(before)) << from << " to " << to;
    }
  }
}

TEST(TJust, a_position_that_nobody_worked_out_does_not_count) {
  command_run run;
  const auto text = run.addLineOfText(u"Hall", {0, 0, 0});
  text->setHorizontalMode(OdDb::kTextRight);
  text->setAlignmentPoint({50, 5, 0});
  OdArray<OdGePoint3d> before, after;
  text->getBoundingPoints(before);
  justify_in_place(*text, justification_at(kBottomRight));
  text->getBoundingPoints(after);
  EXPECT_TRUE(before[0].isEqualTo(after[0]));
}

TEST(TJust, the_keyword_table) {
  struct row {
    std::u16string_view keyword;
    int horizontal, vertical, attachment;
  };
  constexpr row kRows[] = {
      {u"Start", 0, 0, 1}, {u"Center", 1, 0, 2}, {u"Middle", 1, 0, 5}, {u"Right", 2, 0, 3}, {u"TL", 0, 3, 1},
      {u"TC", 1, 3, 2},    {u"TR", 2, 3, 3},     {u"ML", 0, 2, 4},     {u"MC", 1, 2, 5},    {u"MR", 2, 2, 6},
      {u"BL", 0, 1, 7},    {u"BC", 1, 1, 8},     {u"BR", 2, 1, 9}};
  for (const row& each : kRows) {
    command_run run;
    const OdDbObjectId line = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
    const OdDbObjectId block = run.addText(u"Hall", {10, 50, 0})->objectId();
    run.application.input().click({10.5, 20.5, 0});
    EXPECT_EQ(justify(run, {10.5, 48.5, 0}, each.keyword), kCommandDone);
    EXPECT_EQ(single(line)->horizontalMode(), each.horizontal);
    EXPECT_EQ(single(line)->verticalMode(), each.vertical);
    EXPECT_EQ(multi(block)->attachment(), each.attachment);
  }
}

TEST(TJust, a_multi_line_text_keeps_its_top_left_corner) {
  command_run run;
  const OdDbObjectId id = run.addText(u"Hall\\Pand stairs", {10, 50, 0})->objectId();
  const OdGePoint3d before = corner_of(*multi(id));
  EXPECT_EQ(justify(run, {10.5, 48.5, 0}, u"BR"), kCommandDone);
  EXPECT_EQ(multi(id)->attachment(), OdDb::kBottomRight);
  EXPECT_TRUE(corner_of(*multi(id)).isEqualTo(before));
}

TEST(TJust, a_selection_of_lines_only_is_told) {
  command_run run;
  run.addLine({0, 0, 0}, {10, 0, 0});
  EXPECT_EQ(justify(run, {5, 0, 0}, u"BR"), kCommandDone);
  EXPECT_EQ(run.said(), u"Selected objects are not texts");
}

TEST(TJust, enter_at_the_keyword_changes_nothing) {
  command_run run;
  const OdDbObjectId id = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
  EXPECT_EQ(justify(run, {10.5, 20.5, 0}, u""), kCommandDone);
  EXPECT_TRUE(single(id)->isDefaultAlignment());
}

TEST(TJust, a_cancelled_keyword_changes_nothing) {
  command_run run;
  const OdDbObjectId id = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
  run.application.input().click({10.5, 20.5, 0});
  run.application.input().line(u"");
  run.application.input().cancel();
  EXPECT_EQ(run.run<CJust>(), kCommandDone);
  EXPECT_TRUE(single(id)->isDefaultAlignment());
}

TEST(TJust, a_cancelled_selection_has_status_1) {
  command_run run;
  run.application.input().cancel();
  EXPECT_EQ(run.run<CJust>(), kCommandCancelled);
}
