#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/desk/cli/program.h"

using testing::HasSubstr;
using testing::Not;

// Whole sessions of the text editor, driven by scripts; the texts are those of the sample drawing.

namespace {

/// A click on the text "Table for 8" picks it for the editor.
const std::string kOpenTable = "MTextEdit\n@click 8400,7050\n";

ProgramRun runLines(const std::string& lines) { return runProgram("run sample.dxf - -o edited.dxf", lines); }

std::string editedTexts() { return runProgram("text edited.dxf").out; }

}  // namespace

TEST(EditSession, typed_characters_are_in_the_saved_drawing) {
  sampleCopy();
  EXPECT_EQ(runLines(kOpenTable + "@key Ctrl+Home\n@key PageUp\n@type Round \n@key Ctrl+Enter\n").exit_code,
            0);
  EXPECT_THAT(editedTexts(), HasSubstr("Round Table for 8"));
}

TEST(EditSession, undo_and_redo_take_back_and_bring_back) {
  sampleCopy();
  const std::string typed = kOpenTable + "@key PageUp\n@type xy\n@key Ctrl+Z\n";
  EXPECT_EQ(runLines(typed + "@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), Not(HasSubstr("xyTable")));
  EXPECT_EQ(runLines(typed + "@key Ctrl+Y\n@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("xyTable for 8"));
}

TEST(EditSession, a_selection_is_replaced_by_what_is_typed) {
  sampleCopy();
  EXPECT_EQ(runLines(kOpenTable + "@key Ctrl+A\n@type Desk\n@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("\tDesk\n"));
  EXPECT_THAT(editedTexts(), Not(HasSubstr("Table for 8")));
}

TEST(EditSession, escape_asks_and_yes_keeps_the_changes) {
  sampleCopy();
  EXPECT_EQ(runLines(kOpenTable + "@key PageUp\n@type K\n@key Esc\n@answer yes\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("KTable for 8"));
}

TEST(EditSession, escape_asks_and_no_drops_the_changes) {
  const auto drawing = sampleCopy();
  EXPECT_EQ(runLines(kOpenTable + "@type K\n@key Esc\n@answer no\n").exit_code, 0);
  EXPECT_EQ(contentOf(scratch("edited.dxf")), contentOf(drawing));
}

TEST(EditSession, escape_asks_and_cancel_goes_on_with_the_session) {
  sampleCopy();
  const std::string lines =
      kOpenTable + "@key PageUp\n@type K\n@key Esc\n@answer cancel\n@type L\n@key Ctrl+Enter\n";
  EXPECT_EQ(runLines(lines).exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("KLTable for 8"));
}

TEST(EditSession, a_question_without_an_answer_ends_with_1) {
  sampleCopy();
  const ProgramRun run = runLines(kOpenTable + "@type K\n@key Esc\n");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.err, HasSubstr("Do you want to save your changes?"));
}

TEST(EditSession, a_session_without_changes_ends_without_a_question) {
  const auto drawing = sampleCopy();
  EXPECT_EQ(runLines(kOpenTable + "@key Right\n@key Esc\n").exit_code, 0);
  EXPECT_EQ(contentOf(scratch("edited.dxf")), contentOf(drawing));
}

TEST(EditSession, a_double_click_on_a_text_opens_it) {
  sampleCopy();
  EXPECT_EQ(runLines("@double 8400,7050\n@key Ctrl+A\n@type Twice\n@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("\tTwice\n"));
}

TEST(EditSession, a_sign_is_chosen_from_the_menu_of_the_right_button_and_undone) {
  sampleCopy();
  const std::string degree = kOpenTable + "@key PageUp\n@right 8400,7050\n@menu Degree\n";
  EXPECT_EQ(runLines(degree + "@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("\u00B0Table for 8"));
  EXPECT_EQ(runLines(degree + "@menu 1005\n@right 8400,7050\n@type K\n@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("\tKTable for 8"));
}

TEST(EditSession, an_entry_that_the_menu_does_not_offer_is_told) {
  sampleCopy();
  const ProgramRun run = runLines(kOpenTable + "@right 8400,7050\n@menu Cut\n@key Ctrl+Enter\n");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.err, HasSubstr("the menu has no entry \"Cut\" that can be chosen."));
}

TEST(EditSession, quit_with_changes_asks_and_cancel_stays) {
  sampleCopy();
  const ProgramRun run =
      runLines(kOpenTable + "@type K\n@key Ctrl+Enter\nQuit\n@answer cancel\nFrobnicate\n");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.out, HasSubstr("Frobnicate"));
}

TEST(EditSession, a_new_text_is_made_from_two_corners) {
  sampleCopy();
  EXPECT_EQ(runLines("MTextCreate\n0,0\n2000,-500\n@type Brand new\n@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("MTEXT\t0\tBrand new"));
}

TEST(EditSession, a_field_is_inserted_by_its_code_and_changed) {
  sampleCopy();
  const std::string inserted =
      "@key Ctrl+Home\n@key PageUp\n@right 8400,7050\n@menu Insert field\n@field \\AcVar LUNITS\n";
  EXPECT_EQ(runLines(kOpenTable + inserted + "@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_THAT(editedTexts(), HasSubstr("\t2Table for 8"));
  EXPECT_THAT(contentOf(scratch("edited.dxf")), HasSubstr("\\AcVar LUNITS"));
}

TEST(EditSession, a_field_without_a_code_is_cancelled) {
  const auto drawing = sampleCopy();
  EXPECT_EQ(runLines(kOpenTable + "@right 8400,7050\n@menu 1049\n@field\n@key Ctrl+Enter\n").exit_code, 0);
  EXPECT_EQ(contentOf(scratch("edited.dxf")), contentOf(drawing));
}
