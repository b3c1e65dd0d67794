#include "od/dxf/code_page.h"

#include <gtest/gtest.h>

#include "od/dxf/text_codec.h"

namespace {

std::u16string decode(std::string_view page, std::string_view bytes) {
  return dxf::TextCodec::code_page(page, dxf::Form::binary).decode(bytes);
}

struct Sample {
  const char* page;
  const char* bytes;
  const char16_t* text;
};

TEST(CodePage, every_name_of_the_header_variable_has_its_table) {
  const Sample samples[] = {
      {"ascii", "\xE4", u"ä"},         {"undefined", "\xE4", u"ä"},      {"iso8859_1", "\xE4", u"ä"},
      {"iso8859_2", "\xB1", u"ą"},     {"iso8859_3", "\xB1", u"ħ"},      {"iso8859_4", "\xBF", u"ŋ"},
      {"iso8859_5", "\xB0", u"А"},     {"iso8859_6", "\xC7", u"ا"},      {"iso8859_7", "\xE1", u"α"},
      {"iso8859_8", "\xE0", u"א"},     {"iso8859_9", "\xFE", u"ş"},      {"dos437", "\xE1", u"ß"},
      {"dos850", "\x9B", u"ø"},        {"dos852", "\xA5", u"ą"},         {"dos855", "\xA1", u"А"},
      {"dos857", "\x9F", u"ş"},        {"dos860", "\x84", u"ã"},         {"dos861", "\x95", u"þ"},
      {"dos863", "\x90", u"É"},        {"dos864", "\xAC", u"،"},         {"dos865", "\x9B", u"ø"},
      {"dos866", "\x80", u"А"},        {"dos869", "\xA4", u"Α"},         {"dos932", "\x82\xA0", u"あ"},
      {"mac-roman", "\x8A", u"ä"},     {"big5", "\xA4\xA4", u"中"},      {"ksc5601", "\xB0\xA1", u"가"},
      {"johab", "\x88\x61", u"가"},    {"gb2312", "\xD6\xD0", u"中"},    {"ansi_874", "\xA1", u"ก"},
      {"ansi_932", "\x82\xA0", u"あ"}, {"ansi_936", "\xD6\xD0", u"中"},  {"ansi_949", "\xB0\xA1", u"가"},
      {"ansi_950", "\xA4\xA4", u"中"}, {"ansi_1250", "\xB9", u"ą"},      {"ansi_1251", "\xC0", u"А"},
      {"ansi_1252", "\x80", u"€"},     {"ansi_1253", "\xE1", u"α"},      {"ansi_1254", "\xFE", u"ş"},
      {"ansi_1255", "\xE0", u"א"},     {"ansi_1256", "\xC7", u"ا"},      {"ansi_1257", "\xE0", u"ą"},
      {"ansi_1258", "\xFE", u"₫"},     {"ansi_1361", "\x88\x61", u"가"},
  };
  for (const Sample& sample : samples) {
    EXPECT_EQ(decode(sample.page, sample.bytes), sample.text) << sample.page;
    EXPECT_EQ(dxf::TextCodec::code_page(sample.page, dxf::Form::binary).encode(sample.text), sample.bytes)
        << sample.page;
  }
}

TEST(CodePage, names_compare_without_case_and_punctuation) {
  for (const char* name : {"ISO8859-5", "8859_5", "iso8859_5", "ISO_8859_5"})
    EXPECT_EQ(decode(name, "\xB0"), u"А");
  for (const char* name : {"DOS850", "dos850"}) EXPECT_EQ(decode(name, "\x9B"), u"ø");
  for (const char* name : {"MAC-ROMAN", "mac-roman"}) EXPECT_EQ(decode(name, "\x8A"), u"ä");
}

TEST(CodePage, an_unknown_name_means_windows_1252) {
  EXPECT_EQ(decode("", "\x80"), u"€");
  EXPECT_EQ(decode("klingon", "\x80"), u"€");
}

TEST(CodePage, the_letters_of_ascii_are_themselves_everywhere) {
  for (const char* page : {"dos850", "dos932", "johab", "ksc5601", "mac-roman"}) {
    for (char c = 0; c >= 0 && c < 0x7F; ++c)
      EXPECT_EQ(decode(page, std::string_view(&c, 1)), std::u16string(1, static_cast<char16_t>(c))) << page;
  }
}

TEST(CodePage, micro_sign_of_dos_is_the_one_of_windows) { EXPECT_EQ(decode("dos437", "\xE6"), u"\u00B5"); }

TEST(CodePage, johab_composes_syllables_of_three_parts) {
  EXPECT_EQ(decode("johab", "\xD0\x65\x8B\x69"), u"한글");
  EXPECT_EQ(decode("johab", "\x88\x41"), u"ㄱ");
  EXPECT_EQ(decode("johab", "\x84\x61"), u"ㅏ");
}

TEST(CodePage, johab_takes_symbols_and_chinese_characters_from_the_rows_of_the_standard) {
  EXPECT_EQ(decode("johab", "\xD9\x31"), u"\u3000");
  EXPECT_EQ(decode("johab", "\xE0\x31"), u"伽");
  EXPECT_EQ(decode("johab", "\xF9\xFE"), u"詰");
}

TEST(CodePage, a_byte_below_the_double_byte_range_is_no_trail_byte) {
  EXPECT_EQ(decode("ansi_936", "\xD6\n"), (std::u16string{0xDCD6, u'\n'}));
}

}  // namespace
