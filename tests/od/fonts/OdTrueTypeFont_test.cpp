#include "od/fonts/OdTrueTypeFont.h"

#include <gtest/gtest.h>

#include "od/base/OdError.h"
#include "od/fonts/TypefaceIndex.h"
#include "od/fonts/glyph_geometry.h"
#include "tests/od/fonts/font_folder.h"

namespace {

/// A face of an installed family, as the tests of all machines have it.
OdTrueTypeFont face(std::u16string_view family, bool embolden = false, bool slant = false) {
  auto file = TypefaceIndex({}).findFamily(family, false, false);
  file->embolden = embolden;
  file->slant = slant;
  return OdTrueTypeFont(odStartFreeType(), *file);
}

/// The area of a glyph by the winding of its contours.
double area(const OdFontGlyph& glyph) {
  double sum = 0;
  for (const auto& contour : glyph.contours) {
    for (std::size_t i = 0; i < contour.size(); ++i) {
      const OdGePoint2d &a = contour[i], &b = contour[(i + 1) % contour.size()];
      sum += (a.x * b.y - b.x * a.y) / 2;
    }
  }
  return std::abs(sum);
}

}  // namespace

TEST(OdTrueTypeFont, is_as_high_as_its_capitals) {
  OdTrueTypeFont sans = face(u"Liberation Sans");
  OdGlyphBox capital = odGlyphBox(*sans.glyph(U'H'));

  EXPECT_FALSE(sans.isShapeFont());
  EXPECT_EQ(sans.name(), u"Liberation Sans");
  EXPECT_EQ(sans.nominalHeight(), 1409);
  EXPECT_EQ(capital.top, 1409);
  EXPECT_EQ(capital.bottom, 0);
}

TEST(OdTrueTypeFont, reports_a_negative_descender_and_a_leading_that_fills_up_the_ascender) {
  OdTrueTypeFont sans = face(u"Liberation Sans");
  EXPECT_EQ(sans.descender(), -434);
  EXPECT_EQ(sans.internalLeading(), 1854 - 1409);
  EXPECT_EQ(sans.linePitch(), 2355);
}

TEST(OdTrueTypeFont, gives_filled_contours_and_unhinted_advances_in_font_units) {
  OdTrueTypeFont sans = face(u"Liberation Sans");
  const OdFontGlyph* letter = sans.glyph(U'O');

  EXPECT_TRUE(letter->filled);
  EXPECT_EQ(letter->contours.size(), 2u) << "the bowl and its counter";
  EXPECT_EQ(letter->advance.x, 1593);
  EXPECT_EQ(sans.glyph(U' ')->advance.x, 569);
  EXPECT_TRUE(sans.glyph(U' ')->contours.empty());
}

TEST(OdTrueTypeFont, works_out_a_glyph_once) {
  OdTrueTypeFont sans = face(u"Liberation Sans");
  EXPECT_EQ(sans.glyph(U'A'), sans.glyph(U'A'));
}

TEST(OdTrueTypeFont, has_no_glyph_for_a_character_that_the_file_lacks_but_a_sign_for_missing_ones) {
  OdTrueTypeFont sans = face(u"Liberation Sans");
  EXPECT_EQ(sans.glyph(U'国'), nullptr);
  EXPECT_FALSE(odGlyphBox(*sans.missingGlyph()).isEmpty);
}

TEST(OdTrueTypeFont, is_made_bold_by_thicker_strokes) {
  OdTrueTypeFont regular = face(u"Liberation Sans"), bold = face(u"Liberation Sans", true);
  EXPECT_GT(area(*bold.glyph(U'l')), 1.3 * area(*regular.glyph(U'l')));
  EXPECT_GT(bold.glyph(U'l')->advance.x, regular.glyph(U'l')->advance.x);
  EXPECT_EQ(bold.nominalHeight(), regular.nominalHeight()) << "text stays as high as it is asked to be";
}

TEST(OdTrueTypeFont, of_one_width_keeps_it_when_made_bold) {
  OdTrueTypeFont mono = face(u"Liberation Mono", true);
  EXPECT_EQ(mono.glyph(U'l')->advance.x, mono.glyph(U'M')->advance.x);
  EXPECT_EQ(mono.glyph(U'l')->advance.x, 1229);
}

TEST(OdTrueTypeFont, is_made_italic_by_leaning_about_the_baseline) {
  OdTrueTypeFont upright = face(u"Liberation Sans"), leaning = face(u"Liberation Sans", false, true);
  OdGlyphBox before = odGlyphBox(*upright.glyph(U'l')), after = odGlyphBox(*leaning.glyph(U'l'));
  EXPECT_NEAR(after.left, before.left, 1) << "the foot stays";
  EXPECT_NEAR(after.right - before.right, 0.2126 * before.top, 1);
  EXPECT_EQ(leaning.glyph(U'l')->advance.x, upright.glyph(U'l')->advance.x);
}

TEST(OdTrueTypeFont, refuses_a_file_that_is_no_font_in_one_sentence) {
  FontFolder folder;
  folder.write("odd.ttf", "this is no font");
  std::string path = folder.path() + "/odd.ttf";
  try {
    OdTrueTypeFont font(odStartFreeType(), {path, 0, false, false});
    FAIL() << "was read";
  } catch (const OdError& error) {
    EXPECT_EQ(error.what(), "The font file " + path + " cannot be used");
    EXPECT_EQ(error.code(), eInvalidFile);
  }
}
