#include "od/fonts/OdShxFont.h"

#include <gtest/gtest.h>

#include "od/base/OdError.h"
#include "od/fonts/OdLffFont.h"
#include "tests/od/fonts/glyph_text.h"
#include "tests/od/fonts/shp_compiler.h"

namespace {

OdShxFont font(std::string_view source, int codePage = 1252,
               std::shared_ptr<const OdFont> primary = nullptr) {
  return OdShxFont(ShxFile::parse(compileShp(source), "test.shx"), u"test.shx", codePage, std::move(primary));
}

/// The way of a character, which tells the shapes of these tests apart; 0 where there is none.
double wayOf(const OdShxFont& of, char32_t character) {
  const OdFontGlyph* glyph = of.glyph(character);
  return glyph ? glyph->advance.x : 0;
}

}  // namespace

TEST(OdShxFont, takes_its_measures_from_the_head_of_the_file) {
  OdShxFont simplex = font("*0,4,a\n21,7,0,0\n*10,4,lf\n2,8,(0,-36),0\n*65,2,a\n010,0\n");

  EXPECT_TRUE(simplex.isShapeFont());
  EXPECT_EQ(simplex.nominalHeight(), 21);
  EXPECT_EQ(simplex.descender(), 7) << "positive, unlike a typeface's";
  EXPECT_EQ(simplex.linePitch(), 36) << "the way of the line feed";
  EXPECT_EQ(simplex.internalLeading(), 0);
}

TEST(OdShxFont, without_a_line_feed_has_a_pitch_of_five_thirds) {
  EXPECT_DOUBLE_EQ(font("*0,4,a\n6,2,0,0\n*65,2,a\n010,0\n").linePitch(), 10);
}

TEST(OdShxFont, refuses_a_file_of_symbols) { EXPECT_THROW(font("*130,4,ZIG\n014,0\n"), OdError); }

TEST(OdShxFont, of_shapes_finds_characters_by_their_byte_in_the_code_page) {
  std::string_view source = "*0,4,a\n6,2,0,0\n*65,2,a\n010,0\n*0E4,2,a\n020,0\n";
  EXPECT_EQ(wayOf(font(source, 1252), U'A'), 1);
  EXPECT_EQ(wayOf(font(source, 1252), U'ä'), 2);
  EXPECT_EQ(wayOf(font(source, 1251), U'ä'), 0) << "1251 has no such letter";
  EXPECT_EQ(wayOf(font(source, 1251), U'д'), 2) << "the byte E4 of 1251";
}

TEST(OdShxFont, of_unicode_finds_characters_by_their_number) {
  OdShxFont wide = font("*UNIFONT,6,a\n6,2,0,0,0,0\n*65,2,a\n010,0\n*00434,2,a\n020,0\n");
  EXPECT_EQ(wayOf(wide, U'д'), 2);
  EXPECT_EQ(wayOf(wide, U'B'), 0);
  EXPECT_EQ(wide.glyph(0x10434), nullptr) << "no wrapping into sixteen bits";
}

TEST(OdShxFont, finds_degree_plus_minus_and_diameter_in_each_kind_of_font) {
  OdShxFont old =
      font("*0,4,a\n6,2,0,0\n*127,2,a\n010,0\n*128,2,a\n020,0\n*129,2,a\n030,0\n*0B0,2,a\n090,0\n");
  OdShxFont later =
      font("*0,4,a\n6,2,0,0\n*256,2,a\n010,0\n*257,2,a\n020,0\n*258,2,a\n030,0\n*127,2,a\n090,0\n");
  OdShxFont wide = font("*UNIFONT,6,a\n6,2,0,0,0,0\n*0B0,2,a\n010,0\n*0B1,2,a\n020,0\n*02205,2,a\n030,0\n");
  for (const OdShxFont* each : {&old, &later, &wide}) {
    EXPECT_EQ(wayOf(*each, U'°'), 1);
    EXPECT_EQ(wayOf(*each, U'±'), 2);
    EXPECT_EQ(wayOf(*each, U'∅'), 3);
    EXPECT_EQ(wayOf(*each, U'⌀'), 3);
  }
}

TEST(OdShxFont, a_missing_blank_is_as_wide_as_A_or_as_a_capital_is_high) {
  EXPECT_EQ(wayOf(font("*0,4,a\n6,2,0,0\n*65,2,a\n050,0\n"), U' '), 5);
  EXPECT_EQ(wayOf(font("*0,4,a\n6,2,0,0\n*66,2,a\n050,0\n"), U' '), 6);
  EXPECT_EQ(wayOf(font("*0,4,a\n6,2,0,0\n*32,3,a\n2,040,0\n"), U' '), 4);
}

TEST(OdShxFont, gives_vertical_glyphs_only_where_the_font_has_that_mode) {
  std::string letter = "*65,0,a\n2,14,8,(-3,-6),1,064,2,060,14,8,(-3,-4),0\n";
  OdShxFont both = font("*0,4,a\n6,2,2,0\n" + letter);
  OdShxFont horizontal = font("*0,4,a\n6,2,0,0\n" + letter);

  EXPECT_EQ(glyphText(*both.glyph(U'A', true)), "-3,-6 -3,0 > 0,-4");
  EXPECT_EQ(glyphText(*both.glyph(U'A', false)), "0,0 0,6 > 6,0");
  EXPECT_EQ(glyphText(*horizontal.glyph(U'A', true)), "0,0 0,6 > 6,0");
}

TEST(OdShxFont, of_a_bigfont_finds_characters_by_their_two_bytes) {
  // U+4E9C is 88 9F in code page 932.
  std::string_view source = "*BIGFONT 2,1,081,09F\n*0,4,a\n15,2,2,0\n*0889F,2,a\n030,0\n";
  EXPECT_EQ(wayOf(font(source, 932), U'亜'), 3);
  EXPECT_EQ(wayOf(font(source, 936), U'亜'), 0);
  EXPECT_EQ(wayOf(font(source, 932), U'A'), 0);
}

TEST(OdShxFont, of_a_bigfont_borrows_shapes_from_the_primary_font_at_its_own_size) {
  // The letter is 9 units high there and comes out 18 units high here.
  auto primary = std::make_shared<OdLffFont>("[0041] A\n0,0;0,9\n", u"plain.lff");
  OdShxFont big = font("*BIGFONT 2,1,081,09F\n*0,4,a\n18,2,2,0\n*0889F,3,a\n7,65,0\n", 932, primary);
  EXPECT_EQ(glyphText(*big.glyph(U'亜')), "0,0 0,18 > 6,0");
}

TEST(OdShxFont, measures_its_height_when_the_head_says_0) {
  // U+56FD is B9 FA in code page 936, drawn 7 high here.
  OdShxFont big = font("*BIGFONT 2,1,0A1,0FE\n*0,4,a\n0,64,2,0\n*0B9FA,4,a\n074,2,080,0\n", 936);
  EXPECT_EQ(big.nominalHeight(), 7);
}
