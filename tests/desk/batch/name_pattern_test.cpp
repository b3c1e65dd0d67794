#include "desk/batch/name_pattern.h"

#include <gtest/gtest.h>

TEST(NamePattern, a_plain_name_is_itself_without_case_and_nothing_more) {
  EXPECT_TRUE(matchesName(u"NOTES", u"notes"));
  EXPECT_FALSE(matchesName(u"NOTES-2", u"notes"));
  EXPECT_FALSE(matchesName(u"NOTE", u"notes"));
}

TEST(NamePattern, a_star_stands_for_any_characters_and_for_none) {
  EXPECT_TRUE(matchesName(u"NOTES-2", u"notes*"));
  EXPECT_TRUE(matchesName(u"NOTES", u"notes*"));
  EXPECT_TRUE(matchesName(u"A-TEXT-B-TEXT-C", u"*text-c"));
  EXPECT_FALSE(matchesName(u"A-TEXT-B", u"*text"));
  EXPECT_TRUE(matchesName(u"", u"**"));
}

TEST(NamePattern, a_question_mark_stands_for_one_character) {
  EXPECT_TRUE(matchesName(u"L1", u"l?"));
  EXPECT_FALSE(matchesName(u"L", u"l?"));
  EXPECT_FALSE(matchesName(u"L12", u"l?"));
}

TEST(NamePattern, a_star_gives_back_what_it_took_too_much) {
  EXPECT_TRUE(matchesName(u"aXbXbc", u"a*b?*c"));
  EXPECT_FALSE(matchesName(u"aXbc", u"a*bb*c"));
}

TEST(NamePattern, an_empty_pattern_is_the_empty_name) {
  EXPECT_TRUE(matchesName(u"", u""));
  EXPECT_FALSE(matchesName(u"0", u""));
}
