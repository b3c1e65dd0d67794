#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

TEST(Undo, typing_abc_and_ctrl_z_removes_all_three_characters) { EXPECT_EQ(edit("|", "a b c Ctrl+z"), "|"); }

TEST(Undo, typing_ab_left_c_ctrl_z_removes_only_c) { EXPECT_EQ(edit("|", "a b Left c Ctrl+z"), "a|b"); }

TEST(Undo, a_mouse_click_does_not_end_a_run) {
  edited_text text("|", wrapping(60));
  text.keys("a b");
  text.send({.number = WM_LBUTTONDOWN, .point = {0.1, -1, 0}});
  text.send({.number = WM_LBUTTONUP, .point = {0.1, -1, 0}});
  EXPECT_EQ(text.keys("c").drawn(), "c|ab");
  EXPECT_EQ(text.keys("Ctrl+z").drawn(), "|");
}

TEST(Undo, ctrl_z_on_an_empty_undo_stack_does_nothing) {
  edited_text text("a|b");
  EXPECT_EQ(text.keys("Ctrl+z").drawn(), "a|b");
  EXPECT_EQ(text.session().undo().redo_count(), 0U);
}

TEST(Undo, of_a_resize_restores_width_and_height_as_well_as_the_text) {
  edited_text text("aaaa bbbb |cccc", wrapping(60));
  text.session().pushUndoStep(kUndoSize);
  text.text().setSize(16, 5);
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_EQ(text.text().lineCount(), 2U);
  text.keys("Ctrl+z");
  EXPECT_EQ(text.text().lineCount(), 1U);
  EXPECT_EQ(text.text().frame().width, 60);
  EXPECT_EQ(text.text().frame().height, 0);
}

TEST(Undo, after_undo_a_new_edit_and_redo_the_state_before_the_undone_step_returns) {
  edited_text text("|");
  text.keys("a Right b Ctrl+z");
  EXPECT_EQ(text.drawn(), "a|");
  EXPECT_EQ(text.keys("c").drawn(), "ac|");
  EXPECT_EQ(text.keys("Ctrl+y").drawn(), "ab|");
}

TEST(Undo, with_an_empty_undo_stack_a_cursor_key_also_clears_redo) {
  edited_text text("|");
  text.keys("a Ctrl+z");
  EXPECT_EQ(text.session().undo().redo_count(), 1U);
  text.keys("Left");
  EXPECT_EQ(text.session().undo().redo_count(), 0U);
}

TEST(Undo, with_an_empty_undo_stack_an_edit_clears_redo) {
  edited_text text("|");
  text.keys("a Ctrl+z b Ctrl+y");
  EXPECT_EQ(text.drawn(), "b|");
}

TEST(Undo, a_space_opens_a_step_of_its_own_in_front_of_its_character) {
  edited_text text("|");
  text.keys("a Space");
  EXPECT_EQ(text.session().undo().undo_count(), 3U);
}

TEST(Undo, a_cursor_move_alone_pushes_no_step) {
  edited_text text("a|b");
  text.keys("Left Right Home End Up Down PageUp PageDown");
  EXPECT_FALSE(text.session().hasChanges());
}

TEST(Undo, after_do_is_identity) {
  for (const char* keys :
       {"x", "Enter", "Shift+Enter", "Backspace", "Delete", "Tab", "Ctrl+x", "Ctrl+Backspace"}) {
    edited_text text("ab|cd [ef]gh¶ij|kl");
    const std::string before = text.drawn(), codes = text.codes();
    text.keys(keys).keys("Ctrl+z");
    EXPECT_EQ(text.drawn(), before) << keys;
    EXPECT_EQ(text.codes(), codes) << keys;
  }
}

TEST(Undo, redo_after_undo_is_identity) {
  for (const char* keys : {"x", "Enter", "Backspace", "Delete", "Tab", "Ctrl+x"}) {
    edited_text text("ab|cd [ef]gh¶ij|kl");
    const std::string after = text.keys(keys).drawn();
    EXPECT_EQ(text.keys("Ctrl+z Ctrl+y").drawn(), after) << keys;
  }
}
