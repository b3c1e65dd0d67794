#include "od/base/OdString.h"

#include <gtest/gtest.h>

TEST(OdString, converts_to_and_from_utf8) {
  OdString text("\xC3\x98 5 \xE2\x89\xA4 \xF0\x9F\x98\x80");

  EXPECT_EQ(text.str(), u"\u00D8 5 \u2264 \U0001F600");
  EXPECT_EQ(text.toUtf8(), "\xC3\x98 5 \xE2\x89\xA4 \xF0\x9F\x98\x80");
}

TEST(OdString, counts_utf16_units) { EXPECT_EQ(OdString(u"\U0001F600").getLength(), 2); }

TEST(OdString, a_null_literal_is_empty) {
  EXPECT_TRUE(OdString(static_cast<const char*>(nullptr)).isEmpty());
  EXPECT_TRUE(OdString(static_cast<const char16_t*>(nullptr)).isEmpty());
}

TEST(OdString, compares_names_without_the_case_of_ascii_letters_alone) {
  EXPECT_EQ(OdString(u"ByLayer").iCompare(u"BYLAYER"), 0);
  EXPECT_NE(OdString(u"\u00E4").iCompare(u"\u00C4"), 0);
}

TEST(OdString, ill_formed_bytes_and_lone_surrogates_become_the_replacement_character) {
  EXPECT_EQ(odToUtf16("a\xFF"
                      "b"),
            u"a\uFFFDb");
  EXPECT_EQ(odToUtf16("a\xE2\x89"), u"a\uFFFD\uFFFD");
  EXPECT_EQ(odToUtf8(std::u16string{u'a', char16_t(0xD800)}), "a\xEF\xBF\xBD");
}
