#include "od/fonts/OdLffFont.h"

#include <gtest/gtest.h>

#include "od/base/OdError.h"
#include "od/fonts/glyph_geometry.h"
#include "tests/od/fonts/glyph_text.h"

namespace {

std::string text(const OdLffFont& font, char32_t character) {
  const OdFontGlyph* glyph = font.glyph(character);
  return glyph ? glyphText(*glyph) : "none";
}

}  // namespace

TEST(OdLffFont, reads_polylines_and_advances_behind_the_rightmost_point) {
  OdLffFont font("[0041] A\n0,0;3,9;6,0\n1,3;5,3\n\n[0042] B\n0,0;0,9\n", u"a.lff");
  EXPECT_EQ(text(font, U'A'), "0,0 3,9 6,0 | 1,3 5,3 > 9,0");
  EXPECT_EQ(text(font, U'B'), "0,0 0,9 > 3,0");
  EXPECT_EQ(text(font, U'C'), "none");
}

TEST(OdLffFont, has_capitals_of_nine_units_and_a_descender_of_three) {
  OdLffFont font("# LineSpacingFactor: 1.2\n[0041] A\n0,0;3,9\n", u"a.lff");
  EXPECT_TRUE(font.isShapeFont());
  EXPECT_EQ(font.nominalHeight(), 9);
  EXPECT_EQ(font.descender(), 3);
  EXPECT_EQ(font.linePitch(), 18);
  EXPECT_EQ(font.internalLeading(), 0);
}

TEST(OdLffFont, takes_its_spacings_from_the_head_in_any_case) {
  OdLffFont font(" # LETTERspacing: 1.5\n#WordSpacing:  4\n[0041] A\n0,0;3,9\n", u"a.lff");
  EXPECT_EQ(text(font, U'A'), "0,0 3,9 > 4.5,0");
  EXPECT_EQ(text(font, U' '), "> 4,0") << "the blank needs no entry";
}

TEST(OdLffFont, without_spacings_in_the_head_takes_the_usual_ones) {
  OdLffFont font("[0041] A\n0,0;3,9\n", u"a.lff");
  EXPECT_EQ(text(font, U' '), "> 6.75,0");
}

TEST(OdLffFont, bulges_belong_to_the_segment_that_ends_at_their_vertex) {
  OdLffFont font("[004F] O\n3,7.5;0,7.5,A1;3,7.5,A1\n", u"a.lff");
  OdGlyphBox box = odGlyphBox(*font.glyph(U'O'));
  EXPECT_NEAR(box.left, 0, 1e-9);
  EXPECT_NEAR(box.right, 3, 1e-9);
  EXPECT_NEAR(box.bottom, 6, 0.01);
  EXPECT_NEAR(box.top, 9, 0.01);
}

TEST(OdLffFont, includes_other_characters_even_later_ones) {
  OdLffFont font("[00C4]\nC0041\n2,10;2,11\n\n[0041] A\n0,0;3,9\n", u"a.lff");
  EXPECT_EQ(text(font, U'Ä'), "2,10 2,11 | 0,0 3,9 > 6,0");
}

TEST(OdLffFont, a_character_that_includes_itself_is_drawn_once) {
  OdLffFont font("[0041]\nC0042\n0,0;1,1\n\n[0042]\nC0041\nC0042\n5,5;6,6\n", u"a.lff");
  EXPECT_EQ(text(font, U'A'), "0,0 1,1 | 5,5 6,6 > 9,0");
}

TEST(OdLffFont, a_vertex_without_y_lies_on_the_baseline_and_one_vertex_draws_nothing) {
  OdLffFont font("[0041]\n0;5\n4,4\n", u"a.lff");
  EXPECT_EQ(text(font, U'A'), "0,0 5,0 > 8,0");
}

TEST(OdLffFont, left_of_its_origin_does_not_advance) {
  OdLffFont font("[0301]\n-3,9;-1,11\n", u"a.lff");
  EXPECT_EQ(text(font, 0x301), "-3,9 -1,11 > 0,0");
}

TEST(OdLffFont, the_first_of_two_entries_counts_and_comments_may_stand_between) {
  OdLffFont font("[#41]\n0,0;1,0\n\n# a remark\n[41]\n0,0;2,0\r\n\r\n", u"a.lff");
  EXPECT_EQ(text(font, U'A'), "0,0 1,0 > 4,0");
}

TEST(OdLffFont, a_letter_drawn_as_the_full_stop_is_a_letter_it_lacks) {
  OdLffFont font("[002E] .\n0,0;1,0\n\n[00E4] ä\n0,0;1,0\n\n[00B7]\n0,0;1,0\n", u"a.lff");
  EXPECT_EQ(text(font, U'.'), "0,0 1,0 > 4,0");
  EXPECT_EQ(text(font, U'ä'), "none");
  EXPECT_EQ(text(font, U'·'), "0,0 1,0 > 4,0");
}

TEST(OdLffFont, shows_missing_characters_by_its_replacement_sign_or_a_diamond) {
  OdLffFont with("[FFFD]\n0,0;1,9\n", u"a.lff");
  OdLffFont without("[0041]\n0,0;1,1\n", u"a.lff");
  OdLffFont tooSmall("[FFFD]\n0,0;1,1\n", u"a.lff");
  EXPECT_EQ(glyphText(*with.missingGlyph()), "0,0 1,9 > 4,0");
  EXPECT_EQ(glyphText(*tooSmall.missingGlyph()), "1,0 0,2 1,4 2,2 1,0 > 5,0");
  EXPECT_EQ(glyphText(*without.missingGlyph()), "1,0 0,2 1,4 2,2 1,0 > 5,0");
}

TEST(OdLffFont, refuses_a_text_without_characters) {
  EXPECT_THROW(OdLffFont("", u"a.lff"), OdError);
  EXPECT_THROW(OdLffFont("Dear reader,\n[this] is not a font\n", u"a.lff"), OdError);
}
