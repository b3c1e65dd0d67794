#include "ui/dialogs/character_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/dialogs/unicode_blocks.h"
#include "ui/resources/strings.h"

namespace {

using dialogs::find_characters;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST(CharacterNames, a_label_is_number_and_name) {
  EXPECT_EQ(dialogs::character_label(U'\u00B0'), u"U+00B0 DEGREE SIGN");
  EXPECT_EQ(dialogs::character_label(U'\U0001D6FC'), u"U+1D6FC MATHEMATICAL ITALIC SMALL ALPHA");
  EXPECT_EQ(dialogs::character_label(U'\u4E00'), u"U+4E00 CJK UNIFIED IDEOGRAPH-4E00");
}

TEST(CharacterNames, are_found_by_all_words_in_any_case) {
  EXPECT_EQ(find_characters(u"degree sign").front(), U'\u00B0');
  EXPECT_THAT(find_characters(u"Sign DEGREE"), Contains(U'\u00B0'));
  EXPECT_THAT(find_characters(u"plus minus"), Contains(U'\u00B1'));
}

TEST(CharacterNames, are_found_by_the_beginnings_of_words_and_not_by_their_ends) {
  EXPECT_THAT(find_characters(u"diam"), Contains(U'\u2300'));
  EXPECT_THAT(find_characters(u"iameter"), Not(Contains(U'\u2300')));
}

TEST(CharacterNames, a_character_finds_itself_first) {
  EXPECT_EQ(find_characters(u"\u00B0").front(), U'\u00B0');
  EXPECT_EQ(find_characters(u"\U0001D6FC"), std::vector<char32_t>{U'\U0001D6FC'});
  EXPECT_EQ(find_characters(u"x").front(), U'x');
}

TEST(CharacterNames, a_number_finds_its_character) {
  EXPECT_THAT(find_characters(u"U+00B0"), ElementsAre(U'\u00B0'));
  EXPECT_THAT(find_characters(u"u+2205"), ElementsAre(U'\u2205'));
  EXPECT_THAT(find_characters(u"U+110000"), ElementsAre());
  EXPECT_THAT(find_characters(u"U+"), ElementsAre());
}

TEST(CharacterNames, blanks_controls_and_private_characters_are_not_found) {
  EXPECT_THAT(find_characters(u" \u00A0"), ElementsAre());
  EXPECT_THAT(find_characters(u"U+E100"), ElementsAre());
  EXPECT_THAT(find_characters(u"U+0007"), ElementsAre());
  EXPECT_THAT(find_characters(u"U+D800"), ElementsAre());
}

TEST(CharacterNames, a_search_that_finds_too_much_stops) {
  EXPECT_EQ(find_characters(u"cjk").size(), dialogs::kMostFound);
}

TEST(CharacterNames, a_character_is_one_or_two_units) {
  EXPECT_EQ(dialogs::text_of(U'\u00B0'), u"\u00B0");
  EXPECT_EQ(dialogs::text_of(U'\U0001D6FC'), u"\U0001D6FC");
}

const unicode_block& block_named(std::u16string_view name) {
  return *std::ranges::find(dialogs::unicode_blocks(), name, &unicode_block::name);
}

TEST(UnicodeBlocks, have_names_and_do_not_overlap) {
  char32_t before = 0;
  for (const unicode_block& block : dialogs::unicode_blocks()) {
    EXPECT_FALSE(block.name.empty());
    EXPECT_GT(block.first, before);
    EXPECT_GE(block.last, block.first);
    before = block.last;
  }
  EXPECT_GT(dialogs::unicode_blocks().size(), 250u);
}

TEST(UnicodeBlocks, hold_the_characters_that_can_be_seen) {
  const auto arrows = dialogs::characters_of(block_named(u"Arrows"));
  EXPECT_EQ(arrows.size(), 112u);
  EXPECT_EQ(arrows.front(), U'\u2190');
  const auto latin = dialogs::characters_of(block_named(u"Latin-1 Supplement"));
  EXPECT_EQ(latin.front(), U'\u00A1');
  EXPECT_EQ(latin.back(), U'\u00FF');
}

TEST(UnicodeBlocks, those_that_are_translated_have_the_names_of_the_table) {
  constexpr int first = 1700, last = 1799;
  for (const ResourceString& row : resources::string_table()) {
    if (row.number < first || row.number > last) continue;
    EXPECT_EQ(std::ranges::count(dialogs::unicode_blocks(), std::u16string(row.text), &unicode_block::name),
              1)
        << row.number;
  }
}

}  // namespace
