#include "host/keyword_list.h"

#include <gtest/gtest.h>

namespace {

TEST(KeywordList, a_keyword_is_typed_whole_or_down_to_its_capitals_in_any_case) {
  const HostKeywordList words(u"Height Justify");
  EXPECT_EQ(words.find(u"height"), 0);
  EXPECT_EQ(words.find(u"J"), 1);
  EXPECT_EQ(words.find(u"jus"), 1);
  EXPECT_FALSE(words.find(u"heights"));
  EXPECT_FALSE(words.find(u"x"));
  EXPECT_FALSE(words.find(u""));
}

TEST(KeywordList, capitals_inside_a_word_abbreviate_it) {
  const HostKeywordList words(u"eXit LTscale");
  EXPECT_EQ(words.find(u"x"), 0);
  EXPECT_EQ(words.find(u"ex"), 0);
  EXPECT_FALSE(words.find(u"e"));
  EXPECT_EQ(words.find(u"lt"), 1);
  EXPECT_FALSE(words.find(u"l"));
}

TEST(KeywordList, a_whole_word_wins_over_an_abbreviation_before_it) {
  const HostKeywordList words(u"TopLeft TL T");
  EXPECT_EQ(words.find(u"tl"), 1);
  EXPECT_EQ(words.find(u"t"), 2);
}

TEST(KeywordList, a_word_without_capitals_has_no_abbreviation) {
  EXPECT_FALSE(HostKeywordList(u"all").find(u"a"));
  EXPECT_EQ(HostKeywordList(u"all").find(u"ALL"), 0);
}

TEST(KeywordList, a_star_hides_a_word_that_still_counts_and_answers) {
  const HostKeywordList words(u"Justify *Align Style");
  EXPECT_EQ(words.shown(), u"Justify/Style");
  EXPECT_EQ(words.find(u"a"), 1);
  EXPECT_EQ(words.find(u"s"), 2);
}

TEST(KeywordList, blanks_between_words_may_be_many) {
  EXPECT_EQ(HostKeywordList(u"  Yes   No ").shown(), u"Yes/No");
  EXPECT_TRUE(HostKeywordList(u"  ").isEmpty());
}

}  // namespace
