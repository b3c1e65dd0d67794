#include "desk/batch/batch_journal.h"

#include <gmock/gmock.h>

#include "desk/program/file_error.h"
#include "desk/program/usage_error.h"
#include "tests/desk/batch/scratch_folder.h"

using testing::HasSubstr;

namespace {

using json = nlohmann::ordered_json;
using Start = BatchJournal::Start;

class Journal : public ScratchFolder {
 protected:
  BatchJournal open(Start start, const std::string& order = "TCase Upper") const {
    return BatchJournal(file, json{{"command", order}, {"in_place", true}}, start);
  }
  std::string refusal(Start start, const std::string& order = "TCase Upper") const {
    try {
      open(start, order);
    } catch (const UsageError& error) {
      return error.what();
    }
    return "no refusal";
  }
  static json line(const std::string& result) {
    return {{"outcome", "changed"}, {"source", "old"}, {"result", result}, {"texts", 3}};
  }

  std::filesystem::path file = folder / "report.json.journal";
};

TEST_F(Journal, an_entry_is_found_again_by_a_later_run) {
  open(Start::afresh).add("/plans/a.dxf", line("new"));
  const BatchJournal later = open(Start::resume);
  const JournalEntry* const entry = later.find("/plans/a.dxf");
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->outcome, DrawingOutcome::changed);
  EXPECT_EQ(entry->source, "old");
  EXPECT_EQ(entry->result, "new");
  EXPECT_EQ(entry->texts, 3U);
  EXPECT_EQ(later.read(*entry)["target"], "/plans/a.dxf");
  EXPECT_FALSE(later.find("/plans/b.dxf"));
}

TEST_F(Journal, the_newest_entry_of_a_drawing_counts) {
  BatchJournal journal = open(Start::afresh);
  journal.add("a", line("first"));
  journal.add("a", line("second"));
  EXPECT_EQ(journal.find("a")->result, "second");
  EXPECT_EQ(journal.read(*journal.find("a"))["result"], "second");
}

TEST_F(Journal, a_line_that_a_crash_cut_off_is_dropped_and_the_next_begins_anew) {
  open(Start::afresh).add("a", line("new"));
  std::ofstream(file, std::ios::app) << R"({"target":"b","outcome":"chan)";
  {
    BatchJournal resumed = open(Start::resume);
    EXPECT_FALSE(resumed.find("b"));
    resumed.add("c", line("new"));
  }
  const BatchJournal later = open(Start::resume);
  EXPECT_TRUE(later.find("a"));
  EXPECT_TRUE(later.find("c"));
}

TEST_F(Journal, a_batch_that_did_not_end_is_not_begun_anew_by_mistake) {
  open(Start::afresh).add("a", line("new"));
  EXPECT_THAT(refusal(Start::afresh), HasSubstr("go on with --resume, or remove it"));
}

TEST_F(Journal, one_that_came_to_its_end_gives_way) {
  {
    BatchJournal journal = open(Start::afresh);
    journal.add("a", line("new"));
    journal.finish();
  }
  EXPECT_FALSE(open(Start::afresh).find("a"));
}

TEST_F(Journal, one_that_came_to_its_end_can_be_resumed_for_what_failed) {
  {
    BatchJournal journal = open(Start::afresh);
    journal.add("a", line("new"));
    journal.finish();
  }
  EXPECT_TRUE(open(Start::resume).find("a"));
}

TEST_F(Journal, that_of_another_order_is_not_resumed) {
  open(Start::afresh).add("a", line("new"));
  EXPECT_THAT(refusal(Start::resume, "TCase Lower"), HasSubstr("the journal of another order"));
  EXPECT_EQ(refusal(Start::resume), "no refusal");
}

TEST_F(Journal, only_one_batch_works_with_it) {
  const BatchJournal journal = open(Start::afresh);
  EXPECT_THAT(refusal(Start::resume), HasSubstr("another batch works with this report"));
}

TEST_F(Journal, a_file_that_is_none_stays_as_it_is) {
  std::ofstream(file) << "Tuesday: rain.\n";
  EXPECT_THAT(refusal(Start::resume), HasSubstr("is in the way"));
  EXPECT_EQ(contentOf(file), "Tuesday: rain.\n");
}

TEST_F(Journal, one_that_cannot_be_written_is_told) {
  file = folder / "none" / "journal";
  EXPECT_THROW(open(Start::afresh), FileError);
}

TEST_F(Journal, names_that_are_no_utf_8_keep_apart) {
  EXPECT_EQ(pathInJson("caf\xC3\xA9.dxf"), "caf\xC3\xA9.dxf");
  EXPECT_EQ(pathInJson("caf\xE9.dxf"), "caf\\xE9.dxf");
  EXPECT_NE(pathInJson("caf\xE9.dxf"), pathInJson("caf\xE8.dxf"));
}

}  // namespace
