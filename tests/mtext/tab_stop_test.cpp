#include "mtext/tab_stop.h"

#include <gtest/gtest.h>

#include <limits>

using namespace mtext::format;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::vector<double> positions(const std::vector<tab_stop>& tabs) {
  std::vector<double> result;
  for (const auto& stop : tabs) result.push_back(stop.position);
  return result;
}

}  // namespace

TEST(EqualTabs, lists_that_differ_only_in_the_separator_of_a_left_tab_are_equal) {
  EXPECT_TRUE(equal_tabs(std::vector<tab_stop>{{4.0, 0, u'.'}}, std::vector<tab_stop>{{4.0, 0, u','}}));
}

TEST(EqualTabs, the_separator_of_a_decimal_tab_counts) {
  EXPECT_FALSE(equal_tabs(std::vector<tab_stop>{{4.0, 3, u'.'}}, std::vector<tab_stop>{{4.0, 3, u','}}));
}

TEST(EqualTabs, positions_agree_within_1024_epsilons_of_the_larger) {
  EXPECT_TRUE(equal_positions(4.0, 4.0 * (1 + 1000 * std::numeric_limits<double>::epsilon())));
  EXPECT_FALSE(equal_positions(4.0, 4.0 * (1 + 1100 * std::numeric_limits<double>::epsilon())));
}

TEST(EqualTabs, positions_that_are_not_finite_have_to_be_equal_exactly) {
  EXPECT_TRUE(equal_positions(infinity, infinity));
  EXPECT_FALSE(equal_positions(infinity, -infinity));
  EXPECT_FALSE(equal_positions(infinity, 1e308));
}

TEST(CleanTabs, sorts_by_position_and_keeps_the_first_of_equal_neighbours) {
  std::vector<tab_stop> tabs = {{8.0}, {4.0, 0, u'.'}, {4.0, 0, u','}, {1.0, 2}};

  clean_tabs(tabs);

  EXPECT_EQ(positions(tabs), (std::vector<double>{1.0, 4.0, 8.0}));
  EXPECT_EQ(tabs[1].decimal_char, u'.');
}

TEST(CleanTabs, a_decimal_stop_with_another_separator_at_the_same_place_stays) {
  std::vector<tab_stop> tabs = {{4.0, 3, u'.'}, {4.0, 3, u','}};

  clean_tabs(tabs);

  EXPECT_EQ(tabs.size(), 2u);
}

TEST(CleanTabs, what_is_no_number_stands_last) {
  std::vector<tab_stop> tabs = {{std::numeric_limits<double>::quiet_NaN()}, {infinity}, {1.0}};

  clean_tabs(tabs);

  EXPECT_EQ(tabs[0].position, 1.0);
  EXPECT_EQ(tabs[1].position, infinity);
}
