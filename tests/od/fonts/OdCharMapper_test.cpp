#include "od/fonts/OdCharMapper.h"

#include <gtest/gtest.h>

TEST(OdCharMapper, knows_the_code_page_of_each_charset) {
  EXPECT_EQ(OdCharMapper::getCodepageByCharset(0), 1252);
  EXPECT_EQ(OdCharMapper::getCodepageByCharset(204), 1251);
  EXPECT_EQ(OdCharMapper::getCodepageByCharset(128), 932);
  EXPECT_EQ(OdCharMapper::getCodepageByCharset(134), 936);
  EXPECT_EQ(OdCharMapper::getCodepageByCharset(1), 1252) << "the default charset leaves it open";
}

TEST(OdCharMapper, turns_characters_into_bytes_and_back) {
  EXPECT_EQ(OdCharMapper::toBytes(U'ä', 1252), "\xE4");
  EXPECT_EQ(OdCharMapper::toBytes(U'д', 1251), "\xE4");
  EXPECT_EQ(OdCharMapper::toBytes(U'国', 936), "\xB9\xFA");
  EXPECT_EQ(OdCharMapper::toBytes(U'ä', 437), "\x84");
  EXPECT_EQ(OdCharMapper::toUnicode("\xE4", 1251), U'д');
  EXPECT_EQ(OdCharMapper::toUnicode("\xB9\xFA", 936), U'国');
  EXPECT_EQ(OdCharMapper::toUnicode("\xE4", 0), U'ä') << "0 is taken as 1252";
}

TEST(OdCharMapper, gives_nothing_for_what_a_code_page_lacks) {
  EXPECT_EQ(OdCharMapper::toBytes(U'д', 1252), "");
  EXPECT_EQ(OdCharMapper::toBytes(U'ä', 4711), "");
  EXPECT_EQ(OdCharMapper::toBytes(0xD800, 1252), "");
  EXPECT_EQ(OdCharMapper::toUnicode("\xB9", 936), U'\0');
}
