#include "mtext/format_paragraph.h"

#include <gtest/gtest.h>

using namespace mtext::format;

namespace {

const std::vector<tab_stop> two_stops = {{.position = 4.0}, {.position = 8.0, .kind = 2}};

bool holds_nothing(const paragraph_partial& p) {
  return !p.indent && !p.left && !p.right && !p.before && !p.after && !p.alignment && !p.spacing && !p.tabs;
}

}  // namespace

TEST(ApplyToParagraph, never_changes_tabs_even_when_the_change_holds_some) {
  paragraph target{.tabs = two_stops};

  apply_to(target, {.left = 2.0, .tabs = std::vector<tab_stop>{}});

  EXPECT_EQ(target.left, 2.0);
  EXPECT_TRUE(equal_tabs(target.tabs, two_stops));
}

TEST(ApplyToParagraph, a_change_with_nothing_set_empties_the_seven_other_fields_of_a_change) {
  auto target = to_partial(paragraph{.indent = 1.0, .tabs = two_stops});

  apply_to(target, paragraph_partial());

  ASSERT_TRUE(target.tabs);
  EXPECT_TRUE(equal_tabs(*target.tabs, two_stops));
  target.tabs.reset();
  EXPECT_TRUE(holds_nothing(target));
}

TEST(MergeParagraph, lengths_in_drawing_units_compare_as_multiples_of_the_base_height) {
  paragraph units{.relative = false, .indent = 5.0}, multiples{.relative = true, .indent = 2.0};

  EXPECT_TRUE(holds_nothing(merge(2.5, units, multiples)));
  EXPECT_TRUE(holds_nothing(merge(2.5, multiples, units)));
}

TEST(MergeParagraph, a_changed_length_is_given_as_a_multiple_of_the_base_height) {
  EXPECT_EQ(merge(2.5, {}, {.relative = false, .left = 5.0}).left, 2.0);
}

TEST(MergeParagraph, neither_spacings_nor_tabs_are_scaled) {
  auto change = merge(2.5, {}, {.relative = false, .spacing = {2, 5.0}, .tabs = two_stops});

  EXPECT_EQ(change.spacing, (line_spacing{2, 5.0}));
  ASSERT_TRUE(change.tabs);
  EXPECT_EQ(change.tabs->front().position, 4.0);
}

TEST(MergeParagraph, spacings_compare_exactly_and_lengths_with_a_tolerance) {
  EXPECT_TRUE(merge(1.0, {.spacing = {3, 1.0}}, {.spacing = {3, 1.0000001}}).spacing);
  EXPECT_FALSE(merge(1.0, {.after = 1.0}, {.after = 1.00009}).after);
}

TEST(IntersectionOfParagraphs, keeps_a_field_only_when_it_is_set_and_exactly_equal_in_both) {
  paragraph_partial a{.indent = 1.0, .left = 2.0, .spacing = line_spacing{3, 1.0}};
  paragraph_partial b{.indent = 1.0, .left = 2.0000001, .spacing = line_spacing{3, 2.0}};

  auto common = intersection(a, b);

  EXPECT_EQ(common.indent, 1.0);
  EXPECT_FALSE(common.left);
  EXPECT_FALSE(common.spacing);
}

TEST(IntersectionOfParagraphs, its_tabs_are_those_of_the_second_whatever_the_first_held) {
  paragraph_partial with_tabs{.tabs = two_stops}, without;

  EXPECT_FALSE(intersection(with_tabs, without).tabs);
  EXPECT_TRUE(intersection(without, with_tabs).tabs);
}
