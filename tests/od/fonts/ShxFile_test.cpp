#include "od/fonts/ShxFile.h"

#include <gtest/gtest.h>

#include "od/base/OdError.h"
#include "tests/od/fonts/shp_compiler.h"

namespace {

ShxFile parse(std::string_view source) { return ShxFile::parse(compileShp(source), "test.shx"); }

std::string reasonFor(std::string bytes) {
  try {
    ShxFile::parse(std::move(bytes), "odd.shx");
  } catch (const OdError& error) {
    return error.what();
  }
  return "read";
}

}  // namespace

TEST(ShxFile, of_shapes_has_head_and_instructions) {
  ShxFile file = parse(
      "*0,4,txt\n6,2,2,0\n"
      "*65,4,lca\n2,044,0\n");

  EXPECT_EQ(file.kind(), ShxFile::kShapes);
  EXPECT_TRUE(file.isTextFont());
  EXPECT_EQ(file.above(), 6);
  EXPECT_EQ(file.below(), 2);
  EXPECT_TRUE(file.hasVerticalMode());
  EXPECT_EQ(file.shape(65), std::string_view("\x02\x44\0", 3));
  EXPECT_EQ(file.shape(66), "");
}

TEST(ShxFile, without_number_0_is_a_file_of_symbols) {
  ShxFile file = parse("*130,6,ZIG\n014,01C,0\n");

  EXPECT_FALSE(file.isTextFont());
  EXPECT_EQ(file.shape(130), std::string_view("\x14\x1C\0", 3)) << "the name is no instruction";
}

TEST(ShxFile, of_unifont_has_unicode_numbers) {
  ShxFile file = parse(
      "*UNIFONT,6,wide\n21,7,0,0,0,0\n"
      "*020AC,3,euro\n044,0\n"
      "*65,3,LATIN CAPITAL A\n040,0\n");

  EXPECT_EQ(file.kind(), ShxFile::kUnifont);
  EXPECT_EQ(file.above(), 21);
  EXPECT_EQ(file.numbers(), (std::vector<unsigned>{65, 0x20AC}));
  EXPECT_EQ(file.shape(65), std::string_view("\x40\0", 2));
}

TEST(ShxFile, of_bigfont_finds_displaced_entries_of_its_index) {
  ShxFile file = parse(
      "*BIGFONT 4,2,081,09F,0E0,0EA\n*0,4,big\n15,2,2,0\n"
      "*0889F,2,a\n010,0\n*0899F,2,a\n020,0\n*08A9F,2,a\n030,0\n");

  EXPECT_EQ(file.kind(), ShxFile::kBigfont);
  EXPECT_EQ(file.above(), 15);
  EXPECT_EQ(file.numbers(), (std::vector<unsigned>{0x889F, 0x899F, 0x8A9F}));
  EXPECT_TRUE(file.isLeadByte(0x81));
  EXPECT_TRUE(file.isLeadByte(0xEA));
  EXPECT_FALSE(file.isLeadByte(0xA0));
}

TEST(ShxFile, a_head_of_five_bytes_makes_an_extended_bigfont) {
  ShxFile file = parse("*BIGFONT 2,1,081,09F\n*0,5,ext\n15,0,2,14,0\n*0889F,2,a\n010,0\n");

  EXPECT_EQ(file.kind(), ShxFile::kExtendedBigfont);
  EXPECT_EQ(file.above(), 15);
  EXPECT_EQ(file.characterWidth(), 14);
  EXPECT_EQ(file.below(), 0);
}

TEST(ShxFile, leaves_out_records_that_point_outside_and_keeps_the_rest) {
  std::string bytes =
      compileShp("*BIGFONT 3,1,081,09F\n*0,4,a\n6,2,2,0\n*08140,2,a\n010,0\n*08141,2,a\n020,0\n");
  std::size_t entry = bytes.find("\x40\x81");
  bytes[entry + 6] = '\x70';  // the offset is now beyond the end

  ShxFile file = ShxFile::parse(bytes, "test.shx");

  EXPECT_EQ(file.numbers(), std::vector<unsigned>{0x8141});
  EXPECT_EQ(file.above(), 6);
}

TEST(ShxFile, refuses_other_files_in_one_sentence) {
  EXPECT_EQ(reasonFor(""), "odd.shx is not a compiled shape file");
  EXPECT_EQ(reasonFor(std::string("\0\0\x27\x0A", 4) + std::string(96, '\0')),
            "odd.shx is not a compiled shape file");
  EXPECT_EQ(reasonFor("Test triangles 1.0\r\n\x1A"), "odd.shx is not a compiled shape file");
  EXPECT_EQ(reasonFor("Test unifont 1.0\r\n\x1A"), "odd.shx holds no shape that can be read");
}
