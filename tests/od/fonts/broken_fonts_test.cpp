// Font files come from strangers: whatever bytes they hold, reading and drawing them ends, with a font or
// with one sentence.

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "od/base/OdError.h"
#include "od/fonts/OdJhfFont.h"
#include "od/fonts/OdLffFont.h"
#include "od/fonts/OdShxFont.h"
#include "tests/od/fonts/shp_compiler.h"

namespace {

using Reader = std::function<std::unique_ptr<OdFont>(const std::string&)>;

std::unique_ptr<OdFont> readShx(const std::string& bytes) {
  return std::make_unique<OdShxFont>(ShxFile::parse(bytes, "broken.shx"), u"broken.shx", 932);
}
std::unique_ptr<OdFont> readLff(const std::string& bytes) {
  return std::make_unique<OdLffFont>(bytes, u"broken.lff");
}
std::unique_ptr<OdFont> readJhf(const std::string& bytes) {
  return std::make_unique<OdJhfFont>(bytes, u"broken.jhf");
}

/// Reads a font and draws characters of it. Returns whether there was a font; all that may be thrown is an
/// `OdError` with a sentence.
bool readAndDraw(const Reader& read, const std::string& bytes) {
  try {
    auto font = read(bytes);
    for (char32_t c : {U' ', U'A', U'B', U'C', U'?', U'ä', U'亜', U'€'}) {
      for (bool vertical : {false, true}) {
        const OdFontGlyph* glyph = font->glyph(c, vertical);
        if (!glyph) continue;
        EXPECT_TRUE(std::isfinite(glyph->advance.x) && std::isfinite(glyph->advance.y));
        for (const auto& contour : glyph->contours) {
          for (const OdGePoint2d& p : contour) EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));
        }
      }
    }
    EXPECT_GT(font->nominalHeight(), 0);
    return true;
  } catch (const OdError& error) {
    EXPECT_NE(std::string(error.what()), "");
    return false;
  }
}

void readEveryBeginning(const Reader& read, const std::string& bytes) {
  EXPECT_TRUE(readAndDraw(read, bytes));
  EXPECT_FALSE(readAndDraw(read, ""));
  for (std::size_t length = 0; length < bytes.size(); ++length) readAndDraw(read, bytes.substr(0, length));
}

void readWithChangedBytes(const Reader& read, const std::string& bytes) {
  std::mt19937 random(20);
  int fonts = 0;
  for (int round = 0; round < 2000; ++round) {
    std::string changed = bytes;
    for (unsigned i = 0; i <= random() % 6; ++i)
      changed[random() % changed.size()] = static_cast<char>(random());
    fonts += readAndDraw(read, changed);
  }
  EXPECT_GT(fonts, 100) << "most changes leave a font, so the drawing was tried as well";
}

const std::string kShapes = compileShp(
    "*0,4,a\n21,7,2,0\n*32,3,a\n2,0A0,0\n"
    "*65,0,a\n2,14,8,(-8,-21),1,8,(8,21),3,2,9,(8,-21),(4,4),(0,0),4,2,7,66,0\n"
    "*66,0,b\n5,10,(10,-032),6,11,(12,40,1,7,-024),12,(5,5,99),13,(1,2,3),(4,5,6),(0,0),7,67,0\n"
    "*67,0,c\n7,65,15,020,0\n");
const std::string kUnifont = compileShp(
    "*UNIFONT,6,a\n21,7,2,0,0,0\n*65,0,a\n7,00042,10,(200,004),0\n*00042,0,b\n7,020AC,0\n*020AC,0,e\n"
    "13,(9,9,127),(9,-9,-127),(0,0),0\n");
const std::string kBigfont = compileShp(
    "*BIGFONT 4,1,081,09F\n*0,5,a\n20,0,2,10,0\n*0889F,0,a\n7,0,08140,2,3,5,10,7,0,08141,2,3,5,10,2,080,0\n"
    "*08140,0,p\n8,(10,20),0\n*08141,0,p\n7,0,08141,1,1,9,9,010,0\n");
const std::string kLff =
    "# LetterSpacing: 3\n[0041] A\nC0042\n0,0;3,9,A0.5;6,0,A-1\n\n[0042] "
    "B\nC0041\n1,2;3,4;5\n\n[00e4]\n1,1;2,2\n";
const std::string kJhf = "  699  1JZ\n  714  6MWRFRT RRYQZ\n  717  6JZNFNM RVFVM\n";

}  // namespace

TEST(BrokenFonts, every_beginning_of_a_file_is_survived) {
  readEveryBeginning(readShx, kShapes);
  readEveryBeginning(readShx, kUnifont);
  readEveryBeginning(readShx, kBigfont);
  readEveryBeginning(readLff, kLff);
  readEveryBeginning(readJhf, kJhf);
}

TEST(BrokenFonts, changed_bytes_in_a_file_of_shapes_are_survived) { readWithChangedBytes(readShx, kShapes); }
TEST(BrokenFonts, changed_bytes_in_a_unifont_are_survived) { readWithChangedBytes(readShx, kUnifont); }
TEST(BrokenFonts, changed_bytes_in_a_bigfont_are_survived) { readWithChangedBytes(readShx, kBigfont); }
TEST(BrokenFonts, changed_bytes_in_a_stroke_font_are_survived) { readWithChangedBytes(readLff, kLff); }
TEST(BrokenFonts, changed_bytes_in_a_hershey_font_are_survived) { readWithChangedBytes(readJhf, kJhf); }

TEST(BrokenFonts, a_chain_of_ten_thousand_inclusions_takes_no_stack) {
  std::string text = "[41]\nC0100\n";
  for (int i = 0x100; i < 0x2810; ++i) {
    char block[64];
    std::snprintf(block, sizeof block, "\n[%04X]\nC%04X\n0,0;1,%d\n", i, i + 1, i % 9);
    text += block;
  }
  EXPECT_EQ(OdLffFont(text, u"deep.lff").glyph(U'A')->contours.size(), 0x2710u);
}
