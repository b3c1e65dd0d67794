#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/desk/cli/program.h"

using testing::HasSubstr;
using testing::IsEmpty;

namespace {
auto sentences(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }
}  // namespace

TEST(Program, tells_its_version_and_its_help) {
  EXPECT_EQ(runProgram("--version").out, "scribe 0.1.0\n");
  const ProgramRun help = runProgram("--help");
  EXPECT_EQ(help.exit_code, 0);
  EXPECT_THAT(help.out, HasSubstr("render"));
}

TEST(Program, ends_with_2_when_it_is_called_wrongly) {
  EXPECT_EQ(runProgram("run").exit_code, 2);
  EXPECT_EQ(runProgram("render a.dxf").exit_code, 2);
  EXPECT_EQ(runProgram("render a.dxf -o a.gif").exit_code, 2);
  EXPECT_EQ(runProgram("render a.dxf -o a.png --size 0x5").exit_code, 2);
  EXPECT_EQ(runProgram("render a.dxf -o a.png --window 1,2,3").exit_code, 2);
  EXPECT_EQ(runProgram("render a.dxf -o a.png --window nan,0,1,1").exit_code, 2);
  EXPECT_EQ(runProgram("render a.dxf -o a.png --window 0,-1e308,1,1e308").exit_code, 2);
  EXPECT_EQ(runProgram("render a.dxf -o a.png --background green").exit_code, 2);
  EXPECT_EQ(runProgram("--unknown").exit_code, 2);
}

TEST(Program, needs_a_display_for_its_window_alone) {
  const ProgramRun run = runProgram("");
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_THAT(run.err, HasSubstr("There is no display"));
}

TEST(Program, ends_with_3_and_one_sentence_when_a_drawing_cannot_be_read) {
  writeFile(scratch("text.dxf"), "This is no drawing.\n");
  const std::string whole = contentOf(sampleCopy());
  writeFile(scratch("cut.dxf"), whole.substr(0, whole.size() / 2));
  for (const std::string name : {"missing.dxf", "text.dxf", "cut.dxf", "."}) {
    const ProgramRun run = runProgram("text " + name);
    EXPECT_EQ(run.exit_code, 3) << name;
    EXPECT_EQ(sentences(run.err), 1) << run.err;
    EXPECT_THAT(run.out, IsEmpty());
  }
}

TEST(Program, ends_with_3_when_a_script_cannot_be_read) {
  sampleCopy();
  const ProgramRun run = runProgram("run sample.dxf missing.scr");
  EXPECT_EQ(run.exit_code, 3);
  EXPECT_THAT(run.err, HasSubstr("missing.scr"));
}

TEST(Program, ends_with_3_when_a_picture_cannot_be_written) {
  sampleCopy();
  const ProgramRun run = runProgram("render sample.dxf -o no/folder/a.png");
  EXPECT_EQ(run.exit_code, 3);
  EXPECT_EQ(sentences(run.err), 1) << run.err;
}

TEST(Program, names_file_and_line_of_a_bad_script_and_runs_none_of_it) {
  const auto drawing = sampleCopy();
  const std::string before = contentOf(drawing);
  writeFile(scratch("bad.scr"), "SaveAs\nother.dxf\n@click\n");
  const ProgramRun run = runProgram("run sample.dxf bad.scr");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.err, HasSubstr("bad.scr, line 3:"));
  EXPECT_FALSE(std::filesystem::exists(scratch("other.dxf")));
}

TEST(Program, draws_a_drawing_whose_blocks_refer_to_each_other_and_tells_it_in_one_sentence) {
  const std::string insert = "0\nINSERT\n8\n0\n2\n";
  writeFile(scratch("cycle.dxf"), "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nA\n70\n0\n" + insert +
                                      "B\n0\nENDBLK\n8\n0\n0\nBLOCK\n8\n0\n2\nB\n70\n0\n" + insert +
                                      "A\n0\nENDBLK\n8\n0\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + insert +
                                      "A\n0\nENDSEC\n0\nEOF\n");
  const ProgramRun run = runProgram("render cycle.dxf -o cycle.png");
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_EQ(sentences(run.err), 1) << run.err;
  EXPECT_THAT(run.err, HasSubstr("refers to itself"));
}
