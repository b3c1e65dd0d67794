#include "desk/window/command_history.h"

#include <gtest/gtest.h>

TEST(CommandHistory, walks_back_to_the_oldest_line_and_stays_there) {
  CommandHistory history;
  history.add("Zoom");
  history.add("Save");
  EXPECT_EQ(history.older(""), "Save");
  EXPECT_EQ(history.older("Save"), "Zoom");
  EXPECT_EQ(history.older("Zoom"), "Zoom");
}

TEST(CommandHistory, brings_back_the_line_that_was_being_typed) {
  CommandHistory history;
  history.add("Zoom");
  EXPECT_EQ(history.older("MTex"), "Zoom");
  EXPECT_EQ(history.newer("Zoom"), "MTex");
  EXPECT_EQ(history.newer("MTexts"), "MTexts");
}

TEST(CommandHistory, keeps_no_empty_line_and_no_repeat) {
  CommandHistory history;
  history.add("Zoom");
  history.add("Save");
  history.add("");
  history.add("Save");
  EXPECT_EQ(history.older(""), "Save");
  EXPECT_EQ(history.older(""), "Zoom");
}

TEST(CommandHistory, an_empty_history_leaves_the_line) {
  CommandHistory history;
  EXPECT_EQ(history.older("x"), "x");
  EXPECT_EQ(history.newer("x"), "x");
}
