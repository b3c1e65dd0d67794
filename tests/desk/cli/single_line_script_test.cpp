#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/desk/cli/program.h"

using testing::HasSubstr;

namespace {

/// Runs lines on a copy of the sample and gives what its texts say then.
std::string textsAfter(const std::string& lines) {
  sampleCopy();
  const ProgramRun run = runProgram("run sample.dxf - -o made.dxf", lines);
  EXPECT_EQ(run.exit_code, 0) << run.err;
  return runProgram("text made.dxf").out;
}

const std::string kTyped = "-Text\n100,200\n30\n0\nfirst\nsecond\n\n";

}  // namespace

TEST(SingleLineScript, texts_are_made_at_the_prompt_and_in_the_view) {
  const std::string texts =
      textsAfter(kTyped + "dText\n100,900\n30\n0\n@type third\n@key Enter\n@key Enter\n");
  for (const char* text : {"first", "second", "third"}) EXPECT_THAT(texts, HasSubstr(text));
}

TEST(SingleLineScript, a_text_is_edited_justified_and_fitted) {
  EXPECT_THAT(textsAfter(kTyped + "justifytext\n110,210\n\n_MC\nTextFit\n110,210\n500<0\nddEdit\n110,210\n"
                                  "@type changed\n@key Ctrl+Enter\n\n"),
              HasSubstr("changed"));
}

TEST(SingleLineScript, a_double_click_edits_a_single_line_text) {
  EXPECT_THAT(textsAfter(kTyped + "@double 110,210\n@type changed\n@key Ctrl+Enter\n"), HasSubstr("changed"));
}

TEST(SingleLineScript, every_command_ends_at_a_cancel_and_leaves_the_texts_as_they_were) {
  sampleCopy();
  const std::string before = runProgram("text sample.dxf").out;
  for (const char* begun :
       {"dText\n", "dText\nJustify\n", "dText\n0,0\n", "dText\n0,0\n5\n", "dText\n0,0\n5\n0\n",
        "-Text\n0,0\n5\n0\n", "ddEdit\n", "justifytext\n", "justifytext\nLast\n\n", "TextFit\n"}) {
    const ProgramRun run =
        runProgram("run sample.dxf - -o same.dxf", std::string(begun) + "@key Esc\n@key Esc\n");
    EXPECT_EQ(run.exit_code, 0) << begun << run.err;
    EXPECT_EQ(runProgram("text same.dxf").out, before) << begun;
  }
}
