#include <gmock/gmock.h>

#include "tests/desk/cli/batch_folder.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;
using json = nlohmann::json;

/// The change of a text in one drawing of a report.
json changeOf(const json& drawing, const std::string& handle) {
  for (const json& change : drawing["changes"])
    if (change["handle"] == handle) return change;
  return nullptr;
}

class Batch : public BatchFolder {};

TEST_F(Batch, runs_a_command_on_each_drawing_in_place_and_keeps_the_old_ones) {
  copySamples(3);
  const ProgramRun run = runProgram("batch 'TCase Upper' plans --in-place --jobs 2");
  EXPECT_EQ(run.exit_code, 0) << run.err;
  EXPECT_THAT(run.err, HasSubstr("3 of 3 drawings done: 3 changed"));
  EXPECT_THAT(run.out, IsEmpty());
  for (const std::string name : {"p0.dxf", "p1.dxf", "p2.dxf"}) {
    EXPECT_NE(bytes(name), sample());
    EXPECT_EQ(bytes(name + ".bak"), sample());
  }
  EXPECT_THAT(runProgram("text plans/p1.dxf").out, HasSubstr("B6\tTEXT\tROOMS\tLOBBY\n"));
}

TEST_F(Batch, runs_a_script_whose_save_is_left_to_the_batch) {
  copySamples(1);
  writeFile(scratch("tidy.scr"), "; tidy up\nTCase\nUpper\nSave\nTJust\nMC\n");
  EXPECT_EQ(runProgram("batch tidy.scr plans/p0.dxf --out new").exit_code, 0);
  EXPECT_EQ(bytes("p0.dxf"), sample());
  EXPECT_THAT(runProgram("text new/p0.dxf").out, HasSubstr("LOBBY"));
}

TEST_F(Batch, answers_a_selection_with_what_the_filter_means) {
  copySamples(1);
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --in-place --layer ROOMS --kind text,attribute "
                       "--match '^(Lobby|Office)$' --report report.json")
                .exit_code,
            0);
  const json drawing = report()["drawings"][0];
  EXPECT_EQ(drawing["texts"], 4);
  EXPECT_EQ(changeOf(drawing, "B6"), json::parse(R"({"handle": "B6", "kind": "TEXT", "layer": "ROOMS",
                                                     "before": {"contents": "Lobby", "plain": "Lobby"},
                                                     "after": {"contents": "LOBBY", "plain": "LOBBY"}})"));
  EXPECT_THAT(runProgram("text plans/p0.dxf").out, HasSubstr("Kitchen"));
}

TEST_F(Batch, a_drawing_in_which_nothing_is_meant_is_done_and_not_written) {
  copySamples(1);
  const ProgramRun run = runProgram("batch 'TCase Upper' plans --in-place --layer 'NO SUCH*'");
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_THAT(run.err, HasSubstr("0 changed, 1 unchanged, 0 failed; texts changed: 0"));
  EXPECT_THAT(names(), ElementsAre("p0.dxf"));
  EXPECT_EQ(bytes("p0.dxf"), sample());
}

TEST_F(Batch, reports_what_was_done_and_what_came_of_it) {
  copySamples(2);
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --in-place --report report.json").exit_code, 0);
  const json found = report();
  EXPECT_EQ(found["order"]["command"], "TCase Upper");
  EXPECT_EQ(found["dry_run"], false);
  EXPECT_GT(found["seconds"], 0);
  EXPECT_EQ(found["totals"]["drawings"], 2);
  EXPECT_EQ(found["totals"]["changed"], 2);
  EXPECT_EQ(found["totals"]["not_done"], 0);
  const json first = found["drawings"][0];
  EXPECT_EQ(first["file"], "plans/p0.dxf");
  EXPECT_EQ(first["target"], (folder / "p0.dxf").string());
  EXPECT_EQ(first["outcome"], "changed");
  EXPECT_GT(first["peak_bytes"], 1 << 20);
  const json table = changeOf(first, "EE");
  EXPECT_EQ(table["before"]["plain"], "Table for 8\noak, 40 mm");
  EXPECT_EQ(table["after"]["plain"], "TABLE FOR 8\nOAK, 40 MM");
  EXPECT_NE(table["before"]["contents"], table["before"]["plain"]);
}

TEST_F(Batch, a_drawing_that_fails_is_named_stays_as_it_was_and_stops_no_other) {
  copySamples(3);
  damage("p1.dxf");
  const std::string damaged = bytes("p1.dxf");
  const ProgramRun run = runProgram("batch 'TCase Upper' plans --in-place --report report.json");
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_THAT(run.err, HasSubstr("plans/p1.dxf failed: "));
  EXPECT_THAT(run.err, HasSubstr("2 changed"));
  EXPECT_THAT(run.err, HasSubstr("1 failed"));
  EXPECT_EQ(bytes("p1.dxf"), damaged);
  EXPECT_THAT(names(), ElementsAre("p0.dxf", "p0.dxf.bak", "p1.dxf", "p2.dxf", "p2.dxf.bak"));
  EXPECT_EQ(report()["drawings"][1]["outcome"], "failed");
  EXPECT_NE(report()["drawings"][1]["reason"], "");
}

TEST_F(Batch, a_refused_command_and_an_unanswered_prompt_are_reasons) {
  copySamples(1);
  runProgram("batch 'Frobnicate' plans --in-place --report report.json");
  EXPECT_THAT(report()["drawings"][0]["reason"], HasSubstr("There is no command of this name: Frobnicate"));
  fs::remove(scratch("report.json.journal"));
  runProgram("batch 'Zoom Window' plans --in-place --report report.json");
  EXPECT_THAT(report()["drawings"][0]["reason"], HasSubstr("was asked"));
  EXPECT_EQ(bytes("p0.dxf"), sample());
}

TEST_F(Batch, open_and_save_as_are_refused) {
  copySamples(1);
  EXPECT_EQ(runProgram("batch 'SaveAs other.dxf' plans --in-place").exit_code, 1);
  EXPECT_FALSE(fs::exists(scratch("other.dxf")));
}

TEST_F(Batch, a_dry_run_writes_no_drawing_and_lists_what_would_change) {
  copySamples(2);
  const ProgramRun run = runProgram("batch 'TCase Upper' plans --dry-run --match '^Lobby$'");
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_THAT(run.out, HasSubstr("plans/p1.dxf\n  B6 TEXT ROOMS\n    - Lobby\n    + LOBBY\n"));
  EXPECT_THAT(run.err, HasSubstr("nothing written"));
  EXPECT_THAT(names(), ElementsAre("p0.dxf", "p1.dxf"));
  EXPECT_EQ(bytes("p0.dxf"), sample());
}

TEST_F(Batch, a_dry_run_reports_and_leaves_the_journal_of_a_real_one_alone) {
  copySamples(1);
  writeFile(scratch("report.json.journal"), "that of a real one");
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --dry-run --report report.json").exit_code, 0);
  EXPECT_EQ(report()["dry_run"], true);
  EXPECT_GT(report()["drawings"][0]["texts"], 0);
  EXPECT_EQ(contentOf(scratch("report.json.journal")), "that of a real one");
  EXPECT_FALSE(fs::exists(scratch("report.json.dry-run")));
}

TEST_F(Batch, new_drawings_go_into_a_folder_and_those_without_a_change_byte_for_byte) {
  copySamples(1);
  fs::create_directory(folder / "north");
  fs::copy_file(folder / "p0.dxf", folder / "north" / "n.dxf");
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --out new --layer 'NO SUCH'").exit_code, 0);
  EXPECT_EQ(contentOf(scratch("new/p0.dxf")), sample());
  EXPECT_EQ(contentOf(scratch("new/north/n.dxf")), sample());
}

TEST_F(Batch, a_file_whose_name_is_no_utf_8_is_done_under_its_own_name) {
  writeFile(folder / "caf\xE9.dxf", sample());
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --in-place --report report.json").exit_code, 0);
  EXPECT_NE(bytes("caf\xE9.dxf"), sample());
  EXPECT_EQ(report()["drawings"][0]["file"], "plans/caf\\xE9.dxf");
}

TEST_F(Batch, a_drawing_whose_name_looks_like_an_option_is_a_drawing) {
  writeFile(folder / "--help.dxf", sample());
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --in-place").exit_code, 0);
  EXPECT_NE(bytes("--help.dxf"), sample());
}

TEST_F(Batch, ends_with_2_and_one_sentence_when_it_is_called_wrongly) {
  copySamples(2);
  fs::create_directory(folder / "x");
  writeFile(folder / "x" / "p0.dxf", sample());
  const std::string upper = "batch 'TCase Upper' ";
  for (const std::string& words :
       {upper + "plans", upper + "plans --in-place --out new", upper + "none.dxf --in-place",
        upper + "new-and-empty --in-place", upper + "plans/p0.dxf plans/x/p0.dxf --out new",
        upper + "plans --out plans", upper + "plans --in-place --resume",
        upper + "plans --in-place --match '(open'", upper + "plans --in-place --kind line",
        upper + "plans --in-place --jobs 0", std::string("batch '' plans --in-place"),
        std::string("batch \"TCase 'Upper\" plans --in-place"),
        std::string("batch 'TCase Upper' --in-place")}) {
    fs::create_directories(scratch("new-and-empty"));
    const ProgramRun run = runProgram(words);
    EXPECT_EQ(run.exit_code, 2) << words;
    EXPECT_THAT(run.err, testing::Not(IsEmpty())) << words;
  }
  EXPECT_EQ(bytes("p0.dxf"), sample());
}

TEST_F(Batch, ends_with_3_before_it_begins_when_report_or_folder_cannot_be_made) {
  copySamples(1);
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --in-place --report no/folder/r.json").exit_code, 3);
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --in-place --report plans").exit_code, 3);
  EXPECT_EQ(runProgram("batch 'TCase Upper' plans --out plans/p0.dxf/new").exit_code, 3);
  EXPECT_EQ(bytes("p0.dxf"), sample());
}

TEST_F(Batch, a_second_run_with_the_report_of_an_unfinished_one_is_refused) {
  copySamples(1);
  damage("p0.dxf");
  runProgram("batch 'TCase Upper' plans --in-place --report report.json");
  const std::string journal = contentOf(scratch("report.json.journal"));
  writeFile(scratch("report.json.journal"), journal.substr(0, journal.rfind("{\"finished\"")));
  const ProgramRun run = runProgram("batch 'TCase Upper' plans --in-place --report report.json");
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_THAT(run.err, HasSubstr("go on with --resume"));
}

}  // namespace
