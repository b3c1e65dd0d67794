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

TEST(KeywordList, behind_an_underscore_the_names_of_every_language_count) {
  const HostKeywordList words(u"Links Zentrum *Rechts _ Left Center Right");
  EXPECT_EQ(words.shown(), u"Links/Zentrum");
  EXPECT_EQ(words.size(), 3u);
  EXPECT_EQ(words.find(u"_right"), 2);
  EXPECT_EQ(words.find(u"_c"), 1);
  EXPECT_EQ(words.find(u"r"), 2);
  EXPECT_FALSE(words.find(u"center"));
  EXPECT_FALSE(words.find(u"_Zentrum"));
  EXPECT_EQ(words.globalName(1), u"Center");
}

TEST(KeywordList, without_names_of_its_own_every_language_has_those_of_the_user) {
  const HostKeywordList words(u"Yes No");
  EXPECT_EQ(words.find(u"_no"), 1);
  EXPECT_EQ(words.globalName(1), u"No");
  EXPECT_FALSE(words.find(u"_"));
}

TEST(KeywordList, capitals_are_those_of_any_alphabet) {
  const HostKeywordList words(u"Влево вПраво Über");
  EXPECT_EQ(words.find(u"в"), 0);
  EXPECT_EQ(words.find(u"п"), 1);
  EXPECT_EQ(words.find(u"ü"), 2);
}

TEST(KeywordList, a_no_break_space_is_a_blank_of_its_word) {
  const HostKeywordList words(u"Start\u00A0point");
  EXPECT_EQ(words.shown(), u"Start point");
  EXPECT_EQ(words.find(u"start point"), 0);
  EXPECT_EQ(words.find(u"s"), 0);
}

TEST(KeywordList, blanks_between_words_may_be_many) {
  EXPECT_EQ(HostKeywordList(u"  Yes   No ").shown(), u"Yes/No");
  EXPECT_TRUE(HostKeywordList(u"  ").isEmpty());
}

}  // namespace
