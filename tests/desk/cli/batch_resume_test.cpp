#include <gmock/gmock.h>

#include <csignal>
#include <random>
#include <thread>

#include "tests/desk/cli/batch_folder.h"
#include "tests/desk/cli/running_program.h"

using testing::HasSubstr;

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

constexpr const char* kToggle = "TCase tOggle";
constexpr int kDrawings = 12;

/// The command line of a toggle in place, which done twice would be undone.
std::vector<std::string> toggling(std::vector<std::string> more = {}) {
  std::vector<std::string> words{"batch",  kToggle, "plans",    "--in-place",
                                 "--jobs", "2",     "--report", "report.json"};
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

class BatchResume : public BatchFolder {
 protected:
  /// Every drawing is the old one or the new one; how many are new.
  int countNew() const {
    int found = 0;
    for (int i = 0; i < kDrawings; ++i) {
      const std::string present = bytes("p" + std::to_string(i) + ".dxf");
      EXPECT_TRUE(present == sample() || present == m_toggled) << i;
      found += present == m_toggled;
    }
    return found;
  }

  /// Runs until all is done, with something going wrong at a moment that chance chooses, and then resuming.
  template <typename GoWrong>
  void resumeUntilDone(const GoWrong& goWrong) {
    copySamples(kDrawings);
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int run = 0; run < 8; ++run) {
      RunningProgram batch(scratch(""), toggling({"--resume"}));
      std::this_thread::sleep_for(milliseconds(random() % 1500));
      goWrong(batch);
      batch.wait();
      countNew();
    }
    RunningProgram last(scratch(""), toggling({"--resume"}));
    EXPECT_EQ(last.wait(), 0) << last.messages();
    EXPECT_EQ(countNew(), kDrawings);
    EXPECT_EQ(report()["totals"]["changed"], kDrawings);
    for (const std::string& name : names()) EXPECT_FALSE(name.ends_with(".scribe-staged")) << name;
  }

 private:
  std::string m_toggled = doneOnce(kToggle);
};

TEST_F(BatchResume, a_batch_that_is_killed_again_and_again_does_every_drawing_once) {
  resumeUntilDone([](RunningProgram& batch) { batch.signal(SIGKILL); });
}

TEST_F(BatchResume, processes_of_drawings_that_are_killed_cost_their_drawings_alone) {
  resumeUntilDone([](RunningProgram& batch) {
    for (const pid_t worker : batch.children()) ::kill(worker, SIGKILL);
  });
}

TEST_F(BatchResume, a_killed_process_is_named_as_the_reason) {
  copySamples(2);
  RunningProgram batch(scratch(""), toggling());
  while (batch.children().empty() && !batch.wait(milliseconds(1))) {
  }
  for (const pid_t worker : batch.children()) ::kill(worker, SIGKILL);
  EXPECT_EQ(batch.wait(), 1);
  EXPECT_THAT(batch.messages(), HasSubstr("failed: Its process was ended by signal 9 (Killed)."));
}

TEST_F(BatchResume, the_first_interrupt_lets_end_what_was_begun_and_says_how_to_go_on) {
  copySamples(kDrawings);
  RunningProgram batch(scratch(""), toggling());
  while (batch.children().empty() && !batch.wait(milliseconds(1))) {
  }
  batch.signal(SIGINT);
  EXPECT_EQ(batch.wait(), 1);
  EXPECT_THAT(batch.messages(), HasSubstr("No more drawings are begun"));
  EXPECT_THAT(batch.messages(), HasSubstr("with --resume does what is left"));
  EXPECT_EQ(report()["totals"]["failed"], 0);
  const int done = countNew();
  EXPECT_GT(done, 0);
  EXPECT_LT(done, kDrawings);
  EXPECT_EQ(report()["totals"]["not_done"], kDrawings - done);
  EXPECT_EQ(RunningProgram(scratch(""), toggling({"--resume"})).wait(), 0);
  EXPECT_EQ(countNew(), kDrawings);
}

TEST_F(BatchResume, a_second_batch_with_the_same_report_is_refused_while_the_first_runs) {
  copySamples(kDrawings);
  RunningProgram first(scratch(""), toggling());
  while (first.children().empty() && !first.wait(milliseconds(1))) {
  }
  const ProgramRun second = runProgram("batch 'TCase tOggle' plans --in-place --report report.json --resume");
  EXPECT_EQ(second.exit_code, 2);
  EXPECT_THAT(second.err, HasSubstr("another batch works with this report"));
  EXPECT_EQ(first.wait(), 0);
  EXPECT_EQ(countNew(), kDrawings);
}

TEST_F(BatchResume, a_drawing_that_somebody_changed_since_is_left_alone_and_named) {
  copySamples(kDrawings);
  ASSERT_EQ(RunningProgram(scratch(""), toggling()).wait(), 0);
  std::string edited = bytes("p3.dxf");
  edited.insert(0, "999\nsomebody was here\n");
  writeFile(folder / "p3.dxf", edited);
  for (int run = 0; run < 2; ++run) {
    RunningProgram again(scratch(""), toggling({"--resume"}));
    EXPECT_EQ(again.wait(), 1);
    EXPECT_THAT(again.messages(), HasSubstr("p3.dxf failed: It was changed by somebody else"));
    EXPECT_EQ(bytes("p3.dxf"), edited);
    EXPECT_EQ(report()["totals"]["failed"], 1);
  }
}

TEST_F(BatchResume, what_failed_is_tried_again) {
  copySamples(2);
  damage("p1.dxf");
  EXPECT_EQ(RunningProgram(scratch(""), toggling()).wait(), 1);
  writeFile(folder / "p1.dxf", sample());
  EXPECT_EQ(RunningProgram(scratch(""), toggling({"--resume"})).wait(), 0);
  EXPECT_EQ(bytes("p1.dxf"), bytes("p0.dxf"));
  EXPECT_EQ(report()["totals"]["changed"], 2);
}

}  // namespace
