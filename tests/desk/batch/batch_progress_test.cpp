#include "desk/batch/batch_progress.h"

#include <gtest/gtest.h>

#include <sstream>

using std::chrono::seconds;

namespace {

class Progress : public testing::Test {
 protected:
  BatchProgress::Clock::time_point at(int second) const { return start + seconds(second); }

  BatchProgress::Clock::time_point start = BatchProgress::Clock::now();
  std::ostringstream out;
  BatchTotals totals{.drawings = 4};
};

TEST_F(Progress, a_terminal_has_one_line_that_is_drawn_anew) {
  BatchProgress progress(out, 55, 100, start);
  progress.add(50, /*by_earlier_run=*/false);
  totals.count(DrawingOutcome::changed, 2);
  progress.show(totals, at(3));
  EXPECT_EQ(out.str(), "\r\x1B[K[####....] 1 of 4 drawings, 2 texts changed, 0:03 left");
  progress.end();
  EXPECT_TRUE(out.str().ends_with("\r\x1B[K"));
}

TEST_F(Progress, what_is_told_stands_above_the_line) {
  BatchProgress progress(out, 60, 100, start);
  progress.show(totals, start);
  out.str({});
  progress.tell("plan.dxf failed.");
  EXPECT_EQ(out.str(), "\r\x1B[Kplan.dxf failed.\n");
}

TEST_F(Progress, elsewhere_a_line_comes_now_and_then) {
  BatchProgress progress(out, 0, 100, start);
  progress.add(20, /*by_earlier_run=*/false);
  progress.show(totals, at(9));
  EXPECT_EQ(out.str(), "");
  progress.show(totals, at(10));
  progress.show(totals, at(11));
  EXPECT_EQ(out.str(), "0 of 4 drawings, 0 texts changed, 0:40 left\n");
}

TEST_F(Progress, what_an_earlier_run_did_is_no_measure_of_the_speed) {
  BatchProgress progress(out, 0, 100, start);
  progress.add(60, /*by_earlier_run=*/true);
  progress.add(20, /*by_earlier_run=*/false);
  progress.show(totals, at(10));
  EXPECT_EQ(out.str(), "0 of 4 drawings, 0 texts changed, 0:10 left\n");
}

}  // namespace
