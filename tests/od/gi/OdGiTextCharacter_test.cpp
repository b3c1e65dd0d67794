#include "od/gi/OdGiTextCharacter.h"

#include <gtest/gtest.h>

namespace {

/// The characters alone.
std::u32string read(std::u16string_view text, bool raw = false, int codePage = 1252) {
  std::u32string result;
  for (const OdGiTextCharacter& c : odReadTextCharacters(text, raw, codePage)) result += c.character;
  return result;
}

/// A sign for each character: `u` `o` `k` for the one line it has, `*` for several, `-` for none.
std::string lines(std::u16string_view text) {
  std::string result;
  for (const OdGiTextCharacter& c : odReadTextCharacters(text, false, 0)) {
    int count = c.underlined + c.overlined + c.struckThrough;
    result += count > 1 ? '*' : c.underlined ? 'u' : c.overlined ? 'o' : c.struckThrough ? 'k' : '-';
  }
  return result;
}

}  // namespace

TEST(TextCharacters, symbols_are_read_in_either_case) {
  EXPECT_EQ(read(u"%%c12 %%P1 %%D"), U"\u220512 \u00B11 \u00B0");
}

TEST(TextCharacters, three_percent_signs_are_one) { EXPECT_EQ(read(u"5%%%"), U"5%"); }

TEST(TextCharacters, three_digits_are_a_byte_of_the_code_page) {
  EXPECT_EQ(read(u"%%065%%228"), U"Aä");
  EXPECT_EQ(read(u"%%228", false, 1251), U"д");
}

TEST(TextCharacters, other_sequences_stay_text) {
  EXPECT_EQ(read(u"%%"), U"%%");
  EXPECT_EQ(read(u"%%x"), U"%%x");
  EXPECT_EQ(read(u"%%12"), U"%%12");
  EXPECT_EQ(read(u"\\U+12"), U"\\U+12");
  EXPECT_EQ(read(u"\\M+6B9FA"), U"\\M+6B9FA");
  EXPECT_EQ(read(u"50%"), U"50%");
}

TEST(TextCharacters, toggles_run_until_they_stand_again) {
  EXPECT_EQ(lines(u"a%%ub%%oc%%ud%%Oe%%kf"), "-u*o-k");
}

TEST(TextCharacters, escapes_name_unicode_and_double_byte_characters) {
  EXPECT_EQ(read(u"\\U+00e4\\M+5B9FA"), U"ä国");
}

TEST(TextCharacters, a_surrogate_pair_is_one_character_however_it_is_written) {
  EXPECT_EQ(read(u"😀"), U"😀");
  EXPECT_EQ(read(u"\\U+D83D\\U+DE00"), U"😀");
  EXPECT_EQ(read(u"\xDE00").size(), 1u);
  EXPECT_EQ(read(u"\xD83Dx").size(), 2u);
}

TEST(TextCharacters, raw_text_is_taken_as_it_stands) {
  EXPECT_EQ(read(u"%%c\\U+00e4", true), U"%%c\\U+00e4");
}

TEST(TextCharacters, each_knows_the_units_that_it_was_read_from) {
  const auto characters = odReadTextCharacters(u"a%%ub%%d😀\\U+00e4", false, 0);
  ASSERT_EQ(characters.size(), 5u);
  const std::vector<std::pair<std::size_t, std::size_t>> wanted{{0, 1}, {4, 5}, {5, 8}, {8, 10}, {10, 17}};
  for (std::size_t i = 0; i < wanted.size(); ++i)
    EXPECT_EQ(std::pair(characters[i].first, characters[i].last), wanted[i]) << i;
}

TEST(ShownCharacters, are_the_text_without_its_codes) {
  EXPECT_EQ(odShownCharacters(u"%%c20 %%p0.5 at 45%%d, 100%%%"), u"∅20 ±0.5 at 45°, 100%");
  EXPECT_EQ(odShownCharacters(u"%%uROOM%%u 2 😀"), u"ROOM 2 😀");
  EXPECT_EQ(odShownCharacters(u"%%065%%228\\U+03b1"), u"Aäα");
}
