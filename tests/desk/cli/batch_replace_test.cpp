#include <gmock/gmock.h>

#include "tests/desk/cli/batch_folder.h"

using testing::HasSubstr;
using testing::Not;

namespace {

class BatchReplace : public BatchFolder {
 protected:
  /// The texts of the only drawing after a batch over it.
  std::string textsAfter(const std::string& words) const {
    copySamples(1);
    const ProgramRun run = runProgram("batch " + words + " --in-place --report report.json plans");
    EXPECT_EQ(run.exit_code, 0) << run.err;
    return runProgram("text plans/p0.dxf").out;
  }
};

TEST_F(BatchReplace, replaces_what_single_line_and_multi_line_texts_show) {
  const std::string texts = textsAfter("--find Office --replace Studio");
  EXPECT_THAT(texts, HasSubstr("AC\tTEXT\tROOMS\tStudio\n"));
  EXPECT_THAT(texts, HasSubstr("Studio in Mill Lane"));
  EXPECT_THAT(texts, Not(HasSubstr("Office")));
  EXPECT_THAT(texts, HasSubstr("workshop into offices"));
}

TEST_F(BatchReplace, keeps_the_codes_around) {
  textsAfter("--find 'Table for 8' --replace 'Table for 10' --kind mtext");
  const nlohmann::json change = report()["drawings"][0]["changes"][0];
  EXPECT_EQ(change["before"]["contents"], "Table for 8\\P{\\H0.8x;oak, 40 mm}");
  EXPECT_EQ(change["after"]["contents"], "Table for 10\\P{\\H0.8x;oak, 40 mm}");
  EXPECT_EQ(report()["totals"]["texts"], 1);
}

TEST_F(BatchReplace, ignores_case_where_that_is_asked_for) {
  EXPECT_THAT(textsAfter("--find OFFICE --replace Studio"), HasSubstr("Office"));
  EXPECT_THAT(textsAfter("--find OFFICE --replace Studio --ignore-case"), HasSubstr("into Studios"));
}

TEST_F(BatchReplace, takes_expressions_and_puts_their_groups_in) {
  EXPECT_THAT(textsAfter("--find '^([0-9.]+) m²$' --replace 'area $1' --regex"),
              HasSubstr("AD\tTEXT\tROOMS\tarea 10.1\n"));
}

TEST_F(BatchReplace, replaces_by_nothing_and_by_what_looks_like_an_option) {
  EXPECT_THAT(textsAfter("--find 'Rev. ' --replace ''"), HasSubstr("\tA\n"));
  EXPECT_THAT(textsAfter("--find 'Rev. ' --replace=--regex="), HasSubstr("\t--regex=A\n"));
}

TEST_F(BatchReplace, leaves_out_what_the_filter_does_not_mean) {
  const std::string texts = textsAfter("--find Office --replace Studio --layer ROOMS");
  EXPECT_THAT(texts, HasSubstr("Office in Mill Lane"));
  EXPECT_THAT(texts, HasSubstr("\tStudio\n"));
}

TEST_F(BatchReplace, a_drawing_without_a_match_is_unchanged) {
  textsAfter("--find 'no such words' --replace x");
  EXPECT_EQ(report()["totals"]["unchanged"], 1);
  EXPECT_EQ(bytes("p0.dxf"), sample());
}

TEST_F(BatchReplace, an_order_to_replace_is_told_in_the_report) {
  textsAfter("--find Office --replace Studio --ignore-case");
  EXPECT_EQ(report()["order"]["find"], "Office");
  EXPECT_EQ(report()["order"]["replace"], "Studio");
  EXPECT_EQ(report()["order"]["ignore_case"], true);
}

TEST_F(BatchReplace, a_group_that_is_not_there_is_the_reason_of_a_failure) {
  copySamples(1);
  const ProgramRun run = runProgram("batch --find Office --replace '$7' --regex plans --in-place");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_EQ(bytes("p0.dxf"), sample());
}

TEST_F(BatchReplace, half_an_order_is_refused) {
  copySamples(1);
  for (const char* words : {"--find Office plans", "--replace Studio plans", "--find '' --replace x plans",
                            "--find '(open' --replace x --regex plans", "TCase --regex plans"})
    EXPECT_EQ(runProgram(std::string("batch --in-place ") + words).exit_code, 2) << words;
}

}  // namespace
