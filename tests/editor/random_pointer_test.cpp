#include "tests/editor/random_pointer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

#include "tests/editor/text_state.h"

namespace {

using clock_type = std::chrono::steady_clock;

constexpr int kEventsOfASession = 400;

/// How long to go on with ever new sessions: as many seconds as the environment says; without it one session
/// of every kind of columns and every attachment.
std::chrono::seconds asked_time() {
  const char* asked = std::getenv("SCRIBE_RANDOM_SECONDS");
  return std::chrono::seconds(asked ? std::atoi(asked) : 0);
}

/// All that undo brings back but the carets: a press moves them without a step.
std::string taken_back(const ExMTextEditable& text) {
  const auto& columns = text.text().info.columns;
  std::string found = text.contentsText().toUtf8() + "\n" + layout_of(text.text());
  for (const double length : {columns.width, columns.gutter}) found += std::to_string(length) + " ";
  for (const double height : columns.heights) found += std::to_string(height) + " ";
  return found;
}

void expect_no_negative_length(const mtext::column_settings& columns) {
  EXPECT_GE(columns.width, 0);
  EXPECT_GE(columns.gutter, 0);
  for (const double height : columns.heights) EXPECT_GE(height, 0);
}

void go_through(unsigned seed) {
  random_pointer hand(seed);
  const std::string before = taken_back(hand.text());
  for (int i = 1; i <= kEventsOfASession; ++i) {
    hand.event();
    expect_no_negative_length(hand.text().text().info.columns);
    if (i % 100 == 0) expect_laid_out(hand.text());
    ASSERT_FALSE(testing::Test::HasFailure()) << "in session " << seed << " after event " << i;
  }
  hand.undo_all();
  EXPECT_EQ(taken_back(hand.text()), before) << "after the undo of session " << seed;
}

}  // namespace

TEST(RandomPointer, leaves_no_negative_length_and_undo_takes_all_of_it_back) {
  const auto end = clock_type::now() + asked_time();
  unsigned seed = 0;
  do {
    go_through(seed++);
    ASSERT_FALSE(HasFailure());
  } while (seed < 36 || clock_type::now() < end);
  RecordProperty("sessions", static_cast<int>(seed));
}
