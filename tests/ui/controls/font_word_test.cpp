#include "ui/controls/font_word.h"

#include <gtest/gtest.h>

TEST(FontWord, a_typeface_has_its_pitch_and_its_character_set_and_the_icon_of_typefaces) {
  EXPECT_EQ(controls::typeface_word(/*fixed_pitch=*/false, 204), 0x100CCU);
  EXPECT_EQ(controls::typeface_word(/*fixed_pitch=*/true, 0), 0x10100U);
  EXPECT_EQ(controls::pitch_of(0x101CC), 1U);
  EXPECT_EQ(controls::charset_of(0x101CC), 204U);
  EXPECT_FALSE(controls::is_shape_font(0x10000));
  EXPECT_EQ(controls::icon_of(0x10000), 125);
}

TEST(FontWord, a_shape_font_has_none_of_these) {
  EXPECT_TRUE(controls::is_shape_font(controls::kShapeFontWord));
  EXPECT_EQ(controls::icon_of(controls::kShapeFontWord), 124);
}
