#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "tests/editor/edited_drawing.h"
#include "tests/ui/toolbar/edited_with_toolbar.h"
#include "ui/toolbar/layout_table.h"

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

/// A session with few tools on a text that is selected, with its toolbar.
struct CompactToolbar : testing::Test {
  edited_drawing drawing;
  noting_window window;
  smart_edit& session = drawing.begin({.compact = true});
  CMTextEdit bar{session, window, {}};

  CompactToolbar() { session.editable().selectRange(0, -1, /*snap=*/false, /*keep=*/false); }

  std::u16string codes() { return session.editable().contentsText().str(); }
  int focusTaken() { return drawing.application.window().focusTaken(); }
  std::vector<int> steps() {
    std::vector<int> kinds;
    for (const UndoSnapshot& step : session.undo().undo_steps()) kinds.push_back(step.kind);
    return kinds;
  }
};

}  // namespace

TEST_F(CompactToolbar, shows_the_controls_that_are_walked_here) {
  std::vector<int> shown;
  for (const auto& row : toolbar::layout_rows(/*compact=*/true))
    std::ranges::copy_if(row, std::back_inserter(shown), [](int id) { return id > 0; });
  EXPECT_THAT(shown, UnorderedElementsAre(1003, 1004, 1012, 1013, 1));
}

TEST_F(CompactToolbar, its_two_lines_change_the_text_by_one_step_and_give_the_focus_back) {
  const int before = focusTaken();
  bar.press(1003);
  EXPECT_EQ(codes(), u"{\\LHall}");
  EXPECT_THAT(steps(), ElementsAre(kUndoToolbar));
  bar.press(1004);
  EXPECT_EQ(codes(), u"{\\L\\OHall}");
  EXPECT_GE(focusTaken(), before + 2);
}

TEST_F(CompactToolbar, undo_and_redo_go_back_and_forth_and_open_no_step) {
  bar.press(1003);
  bar.press(1012);
  EXPECT_EQ(codes(), u"Hall");
  EXPECT_THAT(steps(), testing::IsEmpty());
  bar.press(1013);
  EXPECT_EQ(codes(), u"{\\LHall}");
}

TEST_F(CompactToolbar, a_refresh_is_no_change_of_the_user) {
  bar.press(1003);
  session.editable().selectRange(0, 1, /*snap=*/false, /*keep=*/false);
  session.editable().endOfEdit(/*relayout=*/false);
  EXPECT_EQ(codes(), u"{\\LHall}");
  EXPECT_THAT(steps(), ElementsAre(kUndoToolbar));
}

TEST_F(CompactToolbar, ok_accepts) {
  bar.press(1);
  EXPECT_TRUE(drawing.application.document().commandInput().take());
}
