// The fonts that the distribution's packages install are what stands in for everything else.

#include <gtest/gtest.h>

#include <filesystem>

#include "od/fonts/OdFont.h"
#include "od/fonts/OdFontLibrary.h"
#include "od/fonts/glyph_geometry.h"

namespace {

std::vector<std::string> filesIn(const std::string& folder, const std::string& extension) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == extension) names.push_back(entry.path().filename().string());
  }
  return names;
}

/// Reads each font and checks that it draws ASCII characters and moves the pen. Fonts of symbols leave most
/// places empty.
void readAll(const std::vector<std::string>& names) {
  OdFontLibrary library;
  for (const std::string& name : names) {
    auto font = library.find({.file = std::u16string(name.begin(), name.end())});
    int drawn = 0;
    for (char32_t c = U'!'; c <= U'~'; ++c) {
      const OdFontGlyph* glyph = font->glyph(c);
      drawn += glyph && !odGlyphBox(*glyph).isEmpty && glyph->advance.x > 0;
    }
    EXPECT_GE(drawn, 10) << name;
  }
  for (const auto& each : library.substitutions())
    EXPECT_EQ(each.reason, "") << "a file that could not be read";
}

}  // namespace

TEST(InstalledFonts, all_stroke_fonts_of_librecad_data_can_be_read) {
  std::vector<std::string> names = filesIn("/usr/share/librecad/fonts", ".lff");
  EXPECT_EQ(names.size(), 46u);
  readAll(names);
}

TEST(InstalledFonts, all_hershey_fonts_can_be_read) {
  std::vector<std::string> names = filesIn("/usr/share/hershey-fonts", ".jhf");
  EXPECT_EQ(names.size(), 32u);
  readAll(names);
}

TEST(InstalledFonts, every_shape_font_of_the_table_has_its_capitals_as_high_as_the_text) {
  OdFontLibrary library;
  for (std::u16string_view name :
       {u"txt", u"simplex", u"romans", u"romand", u"romanc", u"romant", u"italicc", u"isocp"}) {
    auto font = library.find({.file = std::u16string(name)});
    OdGlyphBox box = odGlyphBox(*font->glyph(U'H'));
    EXPECT_NEAR(box.height(), font->nominalHeight(), 0.05 * font->nominalHeight());
    EXPECT_NEAR(box.bottom, 0, 0.05 * font->nominalHeight());
  }
}
