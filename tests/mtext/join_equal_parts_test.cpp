#include <gtest/gtest.h>

#include "mtext/parse.h"
#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::outline;

namespace {

format::string height(double value) { return {.height = value}; }

}  // namespace

TEST(JoinEqualParts, an_empty_text_stays_empty) {
  multitext text;
  join_equal_parts(text);

  EXPECT_TRUE(text.parts.empty());
}

TEST(JoinEqualParts, words_keep_the_format_of_the_first) {
  multitext text;
  text.parts.push_back(new string(height(2.0), u"ab"));
  text.parts.push_back(new string(height(2.00005), u"cd"));

  join_equal_parts(text);

  EXPECT_EQ(outline(text), "[abcd]");
  EXPECT_EQ(text.parts[0].format.height, 2.0);
}

TEST(JoinEqualParts, blanks_keep_the_format_of_the_last) {
  multitext text;
  text.parts.push_back(new spaces(height(2.0), 1));
  text.parts.push_back(new spaces(height(2.00005), 2));

  join_equal_parts(text);

  EXPECT_EQ(outline(text), "_3");
  EXPECT_EQ(text.parts[0].format.height, 2.00005);
}

TEST(JoinEqualParts, words_compare_with_their_neighbour_and_blanks_with_the_last_of_their_run) {
  multitext text;
  for (double value : {2.0, 2.00006, 2.00012}) text.parts.push_back(new string(height(value), u"a"));
  for (double value : {2.0, 2.00006, 2.00012}) text.parts.push_back(new spaces(height(value), 1));

  join_equal_parts(text);

  EXPECT_EQ(outline(text), "[aaa] _1 _2");
}

TEST(JoinEqualParts, all_other_parts_keep_their_place) {
  multitext text;
  text.parts.push_back(new tab(format::string()));
  text.parts.push_back(new tab(format::string()));
  text.parts.push_back(new string(format::string(), u"a"));
  text.parts.push_back(new new_line(format::string()));
  text.parts.push_back(new string(format::string(), u"b"));

  join_equal_parts(text);

  EXPECT_EQ(outline(text), "tab tab [a] line [b]");
}
