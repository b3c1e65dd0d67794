#include "editor/rich_text/read_rtf.h"

#include <gtest/gtest.h>

#include "tests/editor/rich_text/outline.h"

namespace {

std::string read(std::u16string_view rtf) { return outline(rich::read_rtf(rtf)); }

}  // namespace

TEST(ReadRtf, takes_bold_italic_and_underline_within_their_groups) {
  EXPECT_EQ(read(u"{\\rtf1 a{\\b b\\i c\\i0 d}\\ul e\\ulnone f}"), "ab[b]bi[c]b[d]u[e]f");
  EXPECT_EQ(read(u"{\\rtf1\\b a\\plain b}"), "b[a]b");
}

TEST(ReadRtf, takes_colours_from_the_table_and_sizes_in_half_points) {
  EXPECT_EQ(read(u"{\\rtf1{\\colortbl;\\red255\\green0\\blue0;\\red1\\green2\\blue3;}\\cf1 a\\cf2\\fs28 "
                 u"b\\cf0 c\\cf9 d}"),
            "#ff0000[a]#01020314[b]14[cd]");
}

TEST(ReadRtf, takes_paragraphs_line_breaks_and_tabs) {
  EXPECT_EQ(read(u"{\\rtf1 a\\par\r\nb\\line c\\tab d\\par}"), "a¶b\nc\td");
}

TEST(ReadRtf, takes_raised_and_lowered_characters) {
  EXPECT_EQ(read(u"{\\rtf1 m{\\super 2} H\\sub 2\\nosupersub O}"), "m^[2] H_[2]O");
}

TEST(ReadRtf, takes_characters_by_byte_by_number_and_by_name) {
  EXPECT_EQ(read(u"{\\rtf1\\ansi\\ansicpg1251 \\'c4\\'ee\\'ec}"), "Дом");
  EXPECT_EQ(read(u"{\\rtf1\\ansicpg932 \\'83\\'65}"), "テ");
  EXPECT_EQ(read(u"{\\rtf1 \\u8364?\\u-3913?x{\\uc2\\u8960ab}c\\'e9}"), "€\uF0B7x⌀cé");
  EXPECT_EQ(read(u"{\\rtf1 \\{a\\\\b\\}\\endash\\~c}"), "{a\\b}–\u00A0c");
}

TEST(ReadRtf, takes_the_labels_of_lists) {
  EXPECT_EQ(read(u"{\\rtf1{\\listtext\\'b7\\tab}a\\par{\\pntext\\f0 2.\\tab}b\\par c}"), "<•>a¶<2.>b¶c");
}

TEST(ReadRtf, leaves_out_what_is_no_text) {
  EXPECT_EQ(read(u"{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\stylesheet{\\s0 Normal;}}{\\info{\\author "
                 u"Ann}}{\\*\\generator x;}"
                 u"{\\pict 89504e47}{\\object{\\*\\objdata 0102}}{\\field{\\*\\fldinst INCLUDEPICTURE "
                 u"http://example.org}"
                 u"{\\fldrslt b}}\\bin3 {}}a}"),
            "ba");
}

TEST(ReadRtf, of_garbage_gives_no_characters_or_those_that_are_there) {
  EXPECT_TRUE(rich::read_rtf(u"").empty());
  EXPECT_TRUE(rich::read_rtf(u"garbage").empty());
  EXPECT_EQ(read(u"{\\rtf1 a}}}{{b\\"), "ab");
  EXPECT_EQ(read(u"{\\rtf1 \\'zz\\'4\\fs99999999999999 c"), "zz4500000[c]");
}

TEST(ReadRtf, of_a_million_groups_in_each_other_leaves_out_the_deep_ones_and_goes_on_behind_them) {
  const std::u16string deep = std::u16string(1'000'000, u'{') + u"x" + std::u16string(1'000'000, u'}');
  EXPECT_EQ(read(u"{\\rtf1 a" + deep + u"b}"), "ab");
}

TEST(ReadRtf, that_is_too_long_is_not_read) {
  EXPECT_TRUE(rich::read_rtf(u"{\\rtf1 " + std::u16string(rich::kMostUnits, u'a')).empty());
}

TEST(ReadRtf, takes_its_code_page_once) {
  EXPECT_EQ(read(u"{\\rtf1\\ansicpg1251\\ansicpg1252 \\'c4}"), "Д");
  std::u16string many = u"{\\rtf1";
  for (int i = 0; i < 100'000; ++i) many += i % 2 == 0 ? u"\\ansicpg932" : u"\\ansicpg1251";
  EXPECT_EQ(read(many + u" a}"), "a");
}
