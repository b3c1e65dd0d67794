#include "mtext/ensure.h"

#include <gtest/gtest.h>

using namespace mtext;

TEST(Ensure, a_condition_that_does_not_hold_is_named_with_its_message) {
  try {
    ensure(false, "ret < value.size()", "number_counter::index_of: too big index");
    FAIL() << "nothing was thrown";
  } catch (const ensure_error& error) {
    EXPECT_STREQ(error.what(), "ensure 'ret < value.size()' fails: number_counter::index_of: too big index");
  }
}

TEST(Ensure, a_condition_that_holds_does_nothing) { EXPECT_NO_THROW(ensure(true, "true", "never")); }
