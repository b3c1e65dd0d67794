#include "desk/batch/command_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CommandWords, blanks_end_a_word) {
  EXPECT_THAT(commandWords("  TCase\tUpper  "), ElementsAre("TCase", "Upper"));
  EXPECT_THAT(commandWords(" \t"), IsEmpty());
}

TEST(CommandWords, quotes_keep_blanks_and_the_other_quote) {
  EXPECT_THAT(commandWords("A \"first floor\" 'a \"b\" c'"), ElementsAre("A", "first floor", "a \"b\" c"));
}

TEST(CommandWords, a_quoted_nothing_is_an_empty_word) {
  EXPECT_THAT(commandWords("A ''"), ElementsAre("A", ""));
}

TEST(CommandWords, quotes_within_a_word_join_it) { EXPECT_THAT(commandWords("a' b'c"), ElementsAre("a bc")); }

TEST(CommandWords, an_open_quote_is_refused) { EXPECT_THROW(commandWords("A 'b c"), std::invalid_argument); }
