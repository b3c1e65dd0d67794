#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/editor/random_session.h"
#include "tests/editor/text_state.h"

namespace {

/// How many events: those of the environment, or few enough for every day.
int event_count() {
  const char* asked = std::getenv("SCRIBE_RANDOM_EVENTS");
  return asked ? std::atoi(asked) : 4000;
}

}  // namespace

TEST(RandomSession, ends_clean_whatever_happens_in_it) {
  random_session session(20);
  const int events = event_count();
  for (int i = 1; i <= events; ++i) {
    session.event();
    if (i % 500 == 0) expect_sound(session.text());
    ASSERT_FALSE(testing::Test::HasFailure()) << "after event " << i;
  }
  const std::size_t steps = session.undo().undo_count() + session.undo().redo_count();
  const std::size_t stored = stored_parts(session.undo());
  RecordProperty("steps", static_cast<int>(steps));
  RecordProperty("parts_per_step", static_cast<int>(stored / steps));
  // A step holds the pieces that its edits changed and not the text, which is about 300 parts long.
  EXPECT_LT(stored, steps * 100) << steps << " steps";
  session.undo_all();
  expect_sound(session.text());
}
