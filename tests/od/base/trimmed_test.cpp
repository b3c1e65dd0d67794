#include "od/base/trimmed.h"

#include <gtest/gtest.h>

TEST(Trimmed, takes_off_what_is_blank_at_both_ends_and_nothing_within) {
  const std::string_view bytes = " \ta b\t ";
  EXPECT_EQ(odTrimmed(bytes, " \t"), "a b");
  EXPECT_EQ(odTrimmed(bytes, " "), "\ta b\t");
  EXPECT_EQ(odTrimmed(std::u16string_view(u" a "), u" "), u"a");
}

TEST(Trimmed, leaves_nothing_of_a_text_of_blanks) {
  EXPECT_TRUE(odTrimmed(std::string_view("  "), " ").empty());
  EXPECT_TRUE(odTrimmed(std::string_view(), " ").empty());
}
