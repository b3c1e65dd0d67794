#include "ui/fonts/font_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "od/fonts/OdFontLibrary.h"
#include "tests/od/fonts/font_folder.h"
#include "tests/od/fonts/shp_compiler.h"

namespace {

const std::string kPlainShx = compileShp("*0,4,a\n6,2,0,0\n*65,4,a\n064,2,030,0\n*63,3,a\n010,0\n");

fonts::font_row row_named(const std::vector<fonts::font_row>& rows, std::u16string_view name) {
  return *std::ranges::find(rows, name, &fonts::font_row::name);
}

TEST(FontList, has_shape_fonts_by_file_name_before_typefaces_by_name) {
  const FontFolder folder;
  folder.write("plain.shx", kPlainShx);
  OdFontLibrary library;
  library.addShapeFontFolder(folder.path());
  const auto rows = fonts::font_rows(library);
  ASSERT_GT(rows.size(), 2u);
  EXPECT_EQ(rows.front(), (fonts::font_row{u"plain.shx", controls::kShapeFontWord, true}));
  EXPECT_TRUE(std::all_of(rows.begin() + 1, rows.end(),
                          [](const auto& row) { return !controls::is_shape_font(row.word); }));
}

TEST(FontList, a_typeface_has_a_word_of_pitch_and_character_set) {
  const auto rows = fonts::font_rows(OdFontLibrary());
  EXPECT_EQ(row_named(rows, u"Liberation Mono").word, 0x10100U);
  EXPECT_EQ(row_named(rows, u"Liberation Sans").word, 0x10000U);
}

TEST(FontList, shape_fonts_and_typefaces_have_an_icon_each) {
  EXPECT_EQ(controls::icon_of(controls::kShapeFontWord), 124);
  EXPECT_EQ(controls::icon_of(controls::typeface_word(false, 204)), 125);
}

TEST(FontList, a_font_of_the_text_that_is_not_installed_has_a_row_that_says_so) {
  const OdFontLibrary library;
  mtext::format::string_partial format;
  format.font = u"No Such Face";
  format.is_shx = false;
  format.pitch = 1;
  format.charset = 204;
  EXPECT_EQ(fonts::row_of(format, library), (fonts::font_row{u"No Such Face", 0x101CCU, false}));
}

TEST(FontList, a_shape_font_of_the_text_that_is_not_installed_has_one_too) {
  const OdFontLibrary library;
  mtext::format::string_partial format;
  format.font = u"romans.shx";
  format.is_shx = true;
  EXPECT_EQ(fonts::row_of(format, library), (fonts::font_row{u"romans.shx", 0, false}));
}

TEST(FontList, a_face_by_its_full_name_is_installed_although_the_list_has_its_family_alone) {
  const OdFontLibrary library;
  mtext::format::string_partial format;
  format.font = u"Liberation Sans Bold";
  format.is_shx = false;
  EXPECT_TRUE(fonts::row_of(format, library).installed);
}

TEST(FontList, a_chosen_row_changes_font_kind_pitch_and_character_set_and_nothing_else) {
  const auto change = fonts::format_of({u"Liberation Mono", 0x10102U, true});
  EXPECT_EQ(change.font->str(), u"Liberation Mono");
  EXPECT_TRUE(static_cast<bool>(!change.is_shx));
  EXPECT_EQ(change.pitch, 1U);
  EXPECT_EQ(change.charset, 2U);
  EXPECT_FALSE(change.height || change.color || change.width_factor);
  EXPECT_TRUE(static_cast<bool>(fonts::format_of({u"txt.shx", 0, true}).is_shx));
}

}  // namespace
