#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/desk/cli/program.h"

using testing::HasSubstr;

namespace {
/// Runs lines of a script, given on standard input, on a copy of the sample.
ProgramRun runLines(const std::string& lines, const std::string& options = {}) {
  return runProgram("run sample.dxf - " + options, lines);
}
}  // namespace

TEST(RunScript, writes_the_output_in_the_end_byte_for_byte_when_nothing_changed) {
  const auto drawing = sampleCopy();
  EXPECT_EQ(runLines("Zoom Extents\n", "-o same.dxf").exit_code, 0);
  EXPECT_EQ(contentOf(scratch("same.dxf")), contentOf(drawing));
}

TEST(RunScript, refuses_an_unknown_command_and_writes_nothing) {
  sampleCopy();
  const ProgramRun run = runLines("Frobnicate\n", "-o refused.dxf");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.out, HasSubstr("Frobnicate"));
  EXPECT_FALSE(std::filesystem::exists(scratch("refused.dxf")));
}

TEST(RunScript, a_prompt_that_stays_unanswered_is_told) {
  sampleCopy();
  const ProgramRun run = runLines("Zoom\nWindow\n0,0\n");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.err, HasSubstr("\"Specify opposite corner:\" was asked"));
}

TEST(RunScript, nonsense_at_a_prompt_is_told_and_asked_again) {
  sampleCopy();
  const ProgramRun run = runLines("Zoom\nWindow\nnonsense\n0,0\n10,10\n");
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_THAT(run.out, HasSubstr("A point is wanted here"));
}

TEST(RunScript, a_click_answers_a_prompt_for_a_point) {
  sampleCopy();
  EXPECT_EQ(runLines("Zoom\nWindow\n@click 0,0\n@click 10,10\n").exit_code, 0);
}

TEST(RunScript, keys_at_a_prompt_type_at_the_command_line) {
  sampleCopy();
  const ProgramRun run = runLines("@type Frobni\n@key Backspace\n@type x\n@key Enter\n");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.out, HasSubstr("Frobnx"));
}

TEST(RunScript, escape_cancels_a_command_and_nothing_stays_unanswered) {
  sampleCopy();
  EXPECT_EQ(runLines("Zoom\nWindow\n@key Esc\n").exit_code, 0);
}

TEST(RunScript, a_point_within_a_text_is_one_of_the_drawing_however_small_the_drawing_is_seen) {
  sampleCopy();
  const ProgramRun run = runLines(
      "MTextEdit\n@click 14950,7350\n@press 14950,7100\n@release 14950,7100\n@type XYZ\n@key Ctrl+Enter\n",
      "-o pressed.dxf");
  ASSERT_EQ(run.exit_code, 0);
  EXPECT_THAT(runProgram("text pressed.dxf", {}).out, HasSubstr("Doors\\nXYZMark"));
}

TEST(RunScript, save_keeps_the_old_drawing_beside) {
  const auto drawing = sampleCopy();
  EXPECT_EQ(runLines("Save\n").exit_code, 0);
  EXPECT_EQ(contentOf(scratch("sample.dxf.bak")), contentOf(drawing));
}

TEST(RunScript, a_file_whose_name_is_no_utf_8_is_saved_under_its_own_name) {
  const auto named = scratch("named");
  std::filesystem::remove_all(named);
  std::filesystem::create_directory(named);
  std::filesystem::copy_file(sampleCopy(), named / "caf\xE9.dxf");
  EXPECT_EQ(runProgram("run 'named/caf\xE9.dxf' -", "Save\n").exit_code, 0);
  EXPECT_TRUE(std::filesystem::exists(named / "caf\xE9.dxf.bak"));
  const auto files = std::distance(std::filesystem::directory_iterator(named), {});
  EXPECT_EQ(files, 2);
}

TEST(RunScript, save_as_gives_the_drawing_another_name) {
  const auto drawing = sampleCopy();
  EXPECT_EQ(runLines("SaveAs named so.dxf\nSave\n").exit_code, 0);
  EXPECT_EQ(contentOf(scratch("named so.dxf")), contentOf(drawing));
  EXPECT_TRUE(std::filesystem::exists(scratch("named so.dxf.bak")));
  EXPECT_FALSE(std::filesystem::exists(scratch("sample.dxf.bak")));
}

TEST(RunScript, open_puts_another_drawing_in_its_place) {
  const auto drawing = sampleCopy();
  std::filesystem::copy_file(drawing, scratch("second.dxf"),
                             std::filesystem::copy_options::overwrite_existing);
  EXPECT_EQ(runLines("Open second.dxf\nSave\n").exit_code, 0);
  EXPECT_TRUE(std::filesystem::exists(scratch("second.dxf.bak")));
  EXPECT_FALSE(std::filesystem::exists(scratch("sample.dxf.bak")));
}

TEST(RunScript, a_drawing_that_cannot_be_opened_leaves_the_present_one) {
  sampleCopy();
  const ProgramRun run = runLines("Open missing.dxf\nSaveAs stayed.dxf\n");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.out, HasSubstr("missing.dxf"));
  EXPECT_EQ(contentOf(scratch("stayed.dxf")), contentOf(scratch("sample.dxf")));
}

TEST(RunScript, quit_ends_the_script_before_its_last_line) {
  sampleCopy();
  EXPECT_EQ(runLines("Quit\nFrobnicate\n").exit_code, 0);
}

TEST(RunScript, help_lists_the_commands_of_the_desk_and_of_the_module) {
  sampleCopy();
  const ProgramRun run = runLines("Help\n");
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_THAT(run.out, HasSubstr("Saves the drawing under its name."));
  EXPECT_THAT(run.out, HasSubstr("MTextEdit"));
}
