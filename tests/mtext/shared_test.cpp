#include "mtext/shared.h"

#include <gtest/gtest.h>

#include "mtext/font_name.h"
#include "mtext/tab_list.h"
#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

using format::font_name;
using format::tab_list;

TEST(Shared, a_copy_is_shared_until_one_of_both_is_changed) {
  tab_list stops{{4, 0, u' '}};
  const tab_list copy = stops;
  EXPECT_TRUE(copy.is_shared_with(stops));

  stops.edit().push_back({8, 1, u' '});
  EXPECT_FALSE(copy.is_shared_with(stops));
  EXPECT_EQ(stops.size(), 2u);
  ASSERT_EQ(copy.size(), 1u);
  EXPECT_EQ(copy[0].position, 4);
}

TEST(Shared, a_value_of_its_own_is_changed_in_place) {
  tab_list stops{{4, 0, u' '}};
  const format::tab_stop* first = &stops.front();
  stops.edit().front().position = 5;
  EXPECT_EQ(&stops.front(), first);
  EXPECT_EQ(first->position, 5);
}

TEST(Shared, empty_values_are_shared_and_are_changed_apart) {
  tab_list one;
  const tab_list other = std::vector<format::tab_stop>();
  EXPECT_TRUE(one.is_shared_with(other));

  one.edit().push_back({4, 0, u' '});
  EXPECT_EQ(one.size(), 1u);
  EXPECT_TRUE(other.empty());
}

TEST(Shared, assigning_does_not_touch_the_copies) {
  font_name name = u"Arial";
  const font_name copy = name;
  name = u"txt.shx";
  EXPECT_EQ(name, u"txt.shx");
  EXPECT_EQ(copy, u"Arial");
}

TEST(FontName, names_are_equal_and_ordered_by_their_letters_shared_or_not) {
  const font_name a = u"Arial", copy = a, same = u"Arial", other = u"Symbol", none;
  EXPECT_EQ(a, copy);
  EXPECT_EQ(a, same);
  EXPECT_FALSE(a == other);
  EXPECT_LT(a, other);
  EXPECT_LT(none, a);
  EXPECT_FALSE(a < copy);
  EXPECT_TRUE(none.empty());
}

TEST(SharedStops, all_paragraphs_behind_a_list_of_stops_share_it_in_every_form_of_the_text) {
  for (const char16_t* codes : {u"\\pxt4,8;a\\Pb\\Pc", u"\\pt40,80;a\\Pb\\Pc"}) {
    const geom_multitext text = decoded(codes);
    for (std::size_t at : {2, 4}) EXPECT_TRUE(paragraph_at(text, at).tabs.is_shared_with(text.format.tabs));
    EXPECT_EQ(text.format.tabs[1].position, 8);
  }
}

TEST(SharedStops, a_paragraph_that_is_changed_keeps_the_others_as_they_are) {
  geom_multitext text = decoded(u"\\pxt4,8;a\\Pb");
  const geom_multitext before = text;
  paragraph_at(text, 2).tabs.edit().clear();
  EXPECT_EQ(text.format.tabs.size(), 2u);
  EXPECT_EQ(paragraph_at(before, 2).tabs.size(), 2u);
  EXPECT_TRUE(paragraph_at(text, 2).tabs.empty());
}

}  // namespace
}  // namespace mtext
