#include "desk/batch/progress_text.h"

#include <gtest/gtest.h>

#include "desk/batch/batch_totals.h"

using std::chrono::seconds;

TEST(ProgressText, numbers_have_commas_between_thousands) {
  EXPECT_EQ(withCommas(0), "0");
  EXPECT_EQ(withCommas(999), "999");
  EXPECT_EQ(withCommas(1000), "1,000");
  EXPECT_EQ(withCommas(12345678), "12,345,678");
}

TEST(ProgressText, times_have_minutes_and_hours_where_there_are_any) {
  EXPECT_EQ(clockTime(seconds(7)), "0:07");
  EXPECT_EQ(clockTime(seconds(62)), "1:02");
  EXPECT_EQ(clockTime(seconds(3909)), "1:05:09");
}

TEST(ProgressText, the_time_left_follows_from_the_part_that_is_done) {
  EXPECT_EQ(timeLeft(25, 100, seconds(10)), seconds(30));
  EXPECT_EQ(timeLeft(100, 100, seconds(10)), seconds(0));
  EXPECT_EQ(timeLeft(0, 100, seconds(10)), std::nullopt);
}

TEST(ProgressText, tells_drawings_texts_failures_and_time) {
  BatchTotals totals{.drawings = 500};
  EXPECT_EQ(progressText(totals, std::nullopt), "0 of 500 drawings, 0 texts changed");
  totals.count(DrawingOutcome::changed, 3456);
  totals.count(DrawingOutcome::failed, 0);
  EXPECT_EQ(progressText(totals, seconds(42)), "2 of 500 drawings, 3,456 texts changed, 1 failed, 0:42 left");
}

TEST(ProgressText, the_bar_fills_up_and_gives_way_to_the_text) {
  EXPECT_EQ(progressBar(0.5, "half", 17), "[#####.....] half");
  EXPECT_EQ(progressBar(1, "all", 16), "[##########] all");
  EXPECT_EQ(progressBar(0.5, "a long text", 15), "a long text");
  EXPECT_EQ(progressBar(0.5, "a long text", 6), "a long");
}
