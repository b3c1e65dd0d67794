#include "od/fonts/OdJhfFont.h"

#include <gtest/gtest.h>

#include "od/base/OdError.h"
#include "tests/od/fonts/glyph_text.h"

namespace {

/// A record: number, count of pairs, pairs. `R` is 0, letters after it grow to the right and downwards.
std::string record(int number, const std::string& pairs) {
  char head[32];
  std::snprintf(head, sizeof head, "%5d%3zu", number, pairs.size() / 2);
  return head + pairs + "\n";
}

/// Blank and exclamation mark, the first two characters.
const std::string kStart = record(699, "JZ") + record(714, "MWRFRT RRYQZ");

std::string text(const OdJhfFont& font, char32_t character) {
  const OdFontGlyph* glyph = font.glyph(character);
  return glyph ? glyphText(*glyph) : "none";
}

}  // namespace

TEST(OdJhfFont, counts_its_records_from_the_blank_and_its_rows_from_the_baseline) {
  OdJhfFont font(kStart, u"rowmans.jhf");
  EXPECT_EQ(text(font, U' '), "> 16,0");
  // Left bearing M is -5; rows F and T are -12 and 2, the baseline is row 9.
  EXPECT_EQ(text(font, U'!'), "5,21 5,7 | 5,2 4,1 > 10,0");
  EXPECT_EQ(text(font, U'"'), "none");
  EXPECT_EQ(font.nominalHeight(), 21);
}

TEST(OdJhfFont, reads_records_that_are_broken_over_lines) {
  std::string broken = kStart;
  broken.insert(broken.size() - 6, "\r\n");
  EXPECT_EQ(text(OdJhfFont(broken, u"a.jhf"), U'!'), "5,21 5,7 | 5,2 4,1 > 10,0");
}

TEST(OdJhfFont, takes_the_numbered_degree_sign_from_the_place_of_DEL) {
  std::string all;
  for (int i = 0; i < 95; ++i) all += record(12345, "JZ");
  EXPECT_EQ(text(OdJhfFont(all + record(718, "KYRFRT"), u"a.jhf"), U'°'), "7,21 7,7 > 14,0");
  EXPECT_EQ(text(OdJhfFont(all + record(12345, "KYRFRT"), u"a.jhf"), U'°'), "none");
}

TEST(OdJhfFont, lowers_punctuation_that_stands_three_units_too_high) {
  // 14 records up to the stop: its row X is 6, which is 3 above the baseline.
  std::string all;
  for (int i = 0; i < 14; ++i) all += record(12345, "JZ");
  OdJhfFont high(all + record(12345, "MWRXRV"), u"timesr.jhf");
  OdJhfFont right(all + record(12345, "MWR[RY"), u"rowmans.jhf");
  EXPECT_EQ(text(high, U'.'), "5,0 5,2 > 10,0");
  EXPECT_EQ(text(right, U'.'), "5,0 5,2 > 10,0");
}

TEST(OdJhfFont, keeps_the_whole_records_before_one_that_breaks_off) {
  OdJhfFont font(kStart.substr(0, kStart.size() - 4), u"a.jhf");
  EXPECT_EQ(text(font, U' '), "> 16,0");
  EXPECT_EQ(text(font, U'!'), "none");
}

TEST(OdJhfFont, refuses_other_texts) {
  EXPECT_THROW(OdJhfFont("", u"a.jhf"), OdError);
  EXPECT_THROW(OdJhfFont("Dear reader, this is no font", u"a.jhf"), OdError);
  EXPECT_THROW(OdJhfFont("  699 -5JZ", u"a.jhf"), OdError);
}
