#include "od/gi/OdGiTextStyle.h"

#include <gtest/gtest.h>

#include "od/fonts/OdFont.h"
#include "tests/od/gi/test_fonts.h"

TEST(OdGiTextStyle, keeps_a_typeface_in_the_descriptor_word_of_drawings) {
  OdGiTextStyle style;
  style.setFont(u"Arial", /*bold=*/true, /*italic=*/false, /*charset=*/204, /*pitchAndFamily=*/34);
  EXPECT_EQ(style.fontDescriptor(), 0x200CC22u);
  EXPECT_EQ(style.charset(), 204);
  EXPECT_EQ(style.pitchAndFamily(), 34);
  EXPECT_TRUE(style.isBold());
  EXPECT_FALSE(style.isItalic());
}

TEST(OdGiTextStyle, lets_the_descriptor_word_be_written_for_a_font_file) {
  OdGiTextStyle style;
  style.setFileName(u"txt.shx");
  style.setFontDescriptor(0x1008622);
  EXPECT_EQ(style.charset(), 134);
  EXPECT_TRUE(style.isItalic());
  EXPECT_EQ(style.typeface(), u"");
}

TEST(OdGiTextStyle, finds_its_font_when_loaded) {
  TestFonts fonts;
  OdGiTextStyle style;
  EXPECT_EQ(style.font(), nullptr);
  style.setFileName(u"box.lff");
  style.loadStyleRec(fonts);
  EXPECT_EQ(style.font()->name(), u"box.lff");
  style.setFont(u"Arial", false, false, 0, 0);
  EXPECT_EQ(style.font(), nullptr) << "another font has to be loaded anew";
  style.loadStyleRec(fonts);
  EXPECT_EQ(style.font()->name(), u"Liberation Sans");
}

TEST(OdGiTextStyle, setting_a_file_forgets_the_typeface) {
  TestFonts fonts;
  OdGiTextStyle style;
  style.setFont(u"Arial", false, false, 0, 0);
  style.setFileName(u"box.lff");
  style.loadStyleRec(fonts);
  EXPECT_TRUE(style.font()->isShapeFont());
}

TEST(OdGiTextStyle, has_a_flag_word) {
  OdGiTextStyle style;
  style.setFlags(OdGiTextStyle::kShapeFile);
  style.setBackward(true);
  EXPECT_EQ(style.flags(), OdGiTextStyle::kShapeFile | OdGiTextStyle::kBackward);
  style.setFlags(style.flags() & ~1u);
  EXPECT_TRUE(style.isBackward());
  EXPECT_FALSE(style.isVertical() || style.isUpsideDown());
}
