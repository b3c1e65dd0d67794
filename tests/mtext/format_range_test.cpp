#include "mtext/format_range.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

TEST(FormatRange, a_change_reaches_every_part_of_the_range_and_no_other) {
  geom_multitext text = decoded(u"a b\\Pc");
  format::string_partial change;
  change.underline = true;
  format::apply_to(text.parts.begin() + 1, text.parts.begin() + 4, change);
  std::string underlined;
  for (const geom_part& each : text.parts) {
    underlined += each.part().format.flags & format::flag_underline ? 'u' : '-';
  }
  EXPECT_EQ(underlined, "-uuu-");
}

TEST(FormatRange, a_paragraph_change_reaches_the_given_one_and_all_that_the_range_opens) {
  geom_multitext text = decoded(u"a\\Pb\\Pc");
  format::paragraph_partial change;
  change.left = 4;
  change.tabs = std::vector<format::tab_stop>{{1, 0, u' '}};
  format::apply_to(text.format, text.parts.begin(), text.parts.begin() + 2, change);
  EXPECT_EQ(text.format.left, 4);
  EXPECT_EQ(paragraph_at(text, 2).left, 4);
  EXPECT_EQ(paragraph_at(text, 4).left, 0);
  EXPECT_TRUE(text.format.tabs.empty());
}

TEST(FormatRange, the_intersection_of_one_part_is_its_whole_format) {
  const geom_multitext text = decoded(u"a");
  const format::string_partial common = format::intersection(text.parts.begin(), text.parts.end());
  EXPECT_EQ(common.height->first, 10);
  EXPECT_TRUE(common.bold == false);
}

TEST(FormatRange, the_intersection_of_paragraphs_skips_parts_of_other_kinds) {
  const geom_multitext text = decoded(u"\\pxl1;ab");
  EXPECT_EQ(format::intersection(text.format, text.parts.begin(), text.parts.end()).left, 1.0);
}

}  // namespace
}  // namespace mtext
