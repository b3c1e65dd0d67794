#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>

#include "commands/single_line/text_fit_command.h"
#include "commands/single_line/text_fit_tracker.h"
#include "editor/text_justify.h"
#include "tests/commands/command_run.h"

namespace {

/// A text of capitals from 10,20 on, selected by a press on it.
struct TextFit : testing::Test {
  command_run run;
  OdDbObjectId id = run.addLineOfText(u"HH", {10, 20, 0})->objectId();
  WindowlessInput& input = run.application.input();

  TextFit() { input.click({11, 21, 0}); }
  int fit() { return run.run<CTextFitCmd>(); }
  OdDbTextPtr text() const { return odCast<OdDbText>(id.openObject()); }
  double length() const {
    OdArray<OdGePoint3d> corners;
    text()->getBoundingPoints(corners);
    return corners[2].distanceTo(corners[3]);
  }
};

}  // namespace

TEST_F(TextFit, the_end_point_at_double_the_present_length_doubles_the_width_factor) {
  const double before = length();
  input.click({10 + 2 * before, 20, 0});
  EXPECT_EQ(fit(), kCommandDone);
  EXPECT_NEAR(text()->widthFactor(), 2, 1e-9);
  EXPECT_NEAR(length(), 2 * before, 1e-9);
  EXPECT_EQ(text()->height(), 2.5);
}

TEST_F(TextFit, an_end_point_straight_above_the_start_gives_a_rotation_of_90_degrees) {
  input.click({10, 30, 0});
  fit();
  EXPECT_NEAR(text()->rotation(), std::numbers::pi / 2, 1e-12);
  EXPECT_NEAR(length(), 10, 1e-9);
}

TEST_F(TextFit, picking_a_line_reports_it_and_asks_again) {
  command_run other;
  other.addLine({0, 0, 0}, {100, 0, 0});
  const auto text_id = other.addLineOfText(u"HH", {10, 20, 0})->objectId();
  other.application.input().click({50, 0, 0});
  other.application.input().click({11, 21, 0});
  other.application.input().line(u"10<0");
  EXPECT_EQ(other.run<CTextFitCmd>(), kCommandDone);
  EXPECT_THAT(other.application.log().lines(), testing::Contains(u"Selected object is not a Text!"));
  EXPECT_NE(odCast<OdDbText>(text_id.openObject())->widthFactor(), 1);
}

TEST_F(TextFit, a_centred_text_keeps_its_justification_and_its_alignment_point_moves) {
  {
    const auto open = odCast<OdDbText>(id.openObject(OdDb::kForWrite));
    ApplyTextJustify(open, OdDb::kTextCenter, OdDb::kTextBase);
  }
  const double before = length();
  const OdGePoint3d anchor = text()->alignmentPoint();
  input.click({10 + 3 * before, 20, 0});
  fit();
  EXPECT_EQ(text()->horizontalMode(), OdDb::kTextCenter);
  EXPECT_NEAR(text()->position().x, 10, 1e-9);
  EXPECT_NEAR(text()->alignmentPoint().x, anchor.x + before, 1e-9);
}

TEST_F(TextFit, answering_the_keyword_and_then_cancelling_the_start_point_changes_nothing) {
  const std::string before = run.database->writeBytes();
  input.line(u"S");
  input.cancel();
  EXPECT_EQ(fit(), kCommandCancelled);
  EXPECT_EQ(run.database->writeBytes(), before);
}

TEST_F(TextFit, a_new_start_point_moves_the_text_there) {
  input.line(u"start point");
  input.line(u"0,0");
  input.line(u"20<90");
  EXPECT_EQ(fit(), kCommandDone);
  EXPECT_EQ(text()->position(), (OdGePoint3d{0, 0, 0}));
  EXPECT_NEAR(length(), 20, 1e-9);
  EXPECT_NEAR(text()->rotation(), std::numbers::pi / 2, 1e-12);
}

TEST_F(TextFit, a_cancel_at_the_end_point_leaves_the_drawing_as_it_was) {
  const std::string before = run.database->writeBytes();
  input.move({50, 20, 0});
  input.cancel();
  EXPECT_EQ(fit(), kCommandCancelled);
  EXPECT_EQ(run.database->writeBytes(), before);
}

TEST_F(TextFit, shows_the_text_as_it_would_be_under_the_cursor) {
  TextFitTracker tracker(*text());
  const double before = length();
  EXPECT_FALSE(tracker.filterMessage({.number = WM_MOUSEMOVE}, {10, 20 + before / 2, 0}));
  EXPECT_NEAR(tracker.preview().widthFactor(), 0.5, 1e-9);
  EXPECT_NEAR(tracker.preview().rotation(), std::numbers::pi / 2, 1e-12);
  tracker.filterMessage({.number = WM_LBUTTONUP}, {99, 99, 0});
  EXPECT_NEAR(tracker.preview().widthFactor(), 0.5, 1e-9);
  EXPECT_EQ(text()->widthFactor(), 1);
  EXPECT_EQ(tracker.drawables().size(), 1u);
}

TEST_F(TextFit, letters_that_reach_below_the_baseline_count_along_with_the_length) {
  const auto deep = run.addLineOfText(u"gg", {0, 0, 0});
  OdArray<OdGePoint3d> corners;
  deep->getBoundingPoints(corners);
  TextFitTracker tracker(*deep);
  tracker.setEnd({corners[3].x, 0, 0});
  EXPECT_LT(tracker.preview().widthFactor(), 1);
}
