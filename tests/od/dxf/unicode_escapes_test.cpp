#include "od/dxf/unicode_escapes.h"

#include <gtest/gtest.h>

namespace {

using dxf::decode_unicode_escapes;

TEST(UnicodeEscapes, four_digits_in_either_case_are_a_character) {
  EXPECT_EQ(decode_unicode_escapes(u"\\U+2205 94\\U+00b0"), u"∅ 94°");
}

TEST(UnicodeEscapes, a_digit_behind_an_escape_is_a_digit) {
  EXPECT_EQ(decode_unicode_escapes(u"\\U+04104"), u"А4");
  EXPECT_EQ(decode_unicode_escapes(u"\\U+04101234"), u"А1234");
}

TEST(UnicodeEscapes, two_units_make_a_character_beyond_the_first_plane) {
  EXPECT_EQ(decode_unicode_escapes(u"\\U+D83D\\U+DE00"), u"😀");
}

TEST(UnicodeEscapes, eight_digits_make_one_too) {
  EXPECT_EQ(decode_unicode_escapes(u"\\U+0001f600!"), u"😀!");
  EXPECT_EQ(decode_unicode_escapes(u"\\U+0010FFFF"), u"\U0010FFFF");
}

TEST(UnicodeEscapes, half_a_pair_stays_an_escape) {
  for (const char16_t* text : {u"\\U+D83D", u"\\U+DE00", u"\\U+D83D\\U+0041x", u"\\U+DCFF\\U+DE00"}) {
    const std::u16string decoded = decode_unicode_escapes(text);
    for (const char16_t unit : decoded) EXPECT_FALSE(unit >= 0xD800 && unit < 0xE000);
  }
  EXPECT_EQ(decode_unicode_escapes(u"\\U+D83D\\U+0041"), u"\\U+D83DA");
}

TEST(UnicodeEscapes, double_byte_escapes_name_their_code_page) {
  EXPECT_EQ(decode_unicode_escapes(u"\\M+182A0"), u"あ");
  EXPECT_EQ(decode_unicode_escapes(u"\\M+2A4A4"), u"中");
  EXPECT_EQ(decode_unicode_escapes(u"\\M+3B0A1"), u"가");
  EXPECT_EQ(decode_unicode_escapes(u"\\M+48861"), u"가");
  EXPECT_EQ(decode_unicode_escapes(u"\\M+5B1EA"), u"标");
}

TEST(UnicodeEscapes, what_is_malformed_stays) {
  for (const char16_t* text : {u"\\U+00", u"\\U+00G0", u"\\u+0041", u"\\U0041", u"\\M+0B1EA", u"\\M+6B1EA",
                               u"\\M+5B1", u"\\M+50000", u"\\M+", u"\\"})
    EXPECT_EQ(decode_unicode_escapes(text), text);
}

TEST(UnicodeEscapes, escapes_are_written_in_upper_case) {
  EXPECT_EQ(dxf::unicode_escapes(u"\u00fC😀"), u"\\U+00FC\\U+D83D\\U+DE00");
}

}  // namespace
