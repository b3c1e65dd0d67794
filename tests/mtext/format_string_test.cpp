#include "mtext/format_string.h"

#include <gtest/gtest.h>

using namespace mtext::format;
using boost::logic::indeterminate;

namespace {

bool holds_nothing(const string_partial& p) {
  return !p.height && !p.font && !p.pitch && !p.charset && indeterminate(p.is_shx) && indeterminate(p.bold) &&
         indeterminate(p.italic) && indeterminate(p.underline) && indeterminate(p.overline) && !p.color &&
         !p.width_factor && !p.oblique && !p.tracking && !p.align;
}

}  // namespace

TEST(TextColor, without_a_value_it_is_a_true_colour_of_full_bytes) {
  text_color color;

  EXPECT_EQ(color.kind, 1u);
  EXPECT_EQ(color, (text_color{.kind = 1, .top = 255, .red = 255, .green = 255, .blue = 255}));
}

TEST(TextColor, an_index_colour_ignores_the_bytes_and_a_true_colour_the_index) {
  EXPECT_EQ((text_color{.kind = 0, .index = 3, .red = 1}), (text_color{.kind = 0, .index = 3, .red = 2}));
  EXPECT_EQ((text_color{.kind = 1, .index = 3}), (text_color{.kind = 1, .index = 4}));
  EXPECT_FALSE((text_color{.kind = 0, .index = 3}) == (text_color{.kind = 0, .index = 4}));
  EXPECT_FALSE((text_color{.kind = 1, .top = 0}) == (text_color{.kind = 1, .top = 1}));
  EXPECT_FALSE((text_color{.kind = 0}) == (text_color{.kind = 1}));
}

TEST(FormatString, equality_tolerates_a_small_difference_of_heights_and_of_nothing_else) {
  string base;
  EXPECT_TRUE(base == (string{.height = 1.00009}));
  EXPECT_FALSE(base == (string{.height = 1.0002}));
  EXPECT_FALSE(base == (string{.height_kind = 0}));
  EXPECT_FALSE(base == (string{.width_factor = 1.0000001}));
  EXPECT_FALSE(base == (string{.oblique = 0.0000001}));
  EXPECT_FALSE(base == (string{.tracking = 1.0000001}));
}

TEST(FormatString, equality_compares_font_names_by_case) {
  EXPECT_FALSE((string{.font = u"Arial"}) == (string{.font = u"arial"}));
}

TEST(Merge, of_two_equal_strings_is_empty_and_so_is_a_default_format) {
  string format{.height = 2.0, .font = u"Arial", .flags = flag_bold};

  auto change = merge(format, format);

  EXPECT_TRUE(holds_nothing(change));
  EXPECT_TRUE(is_default_format(change));
}

TEST(Merge, of_records_with_a_small_width_factor_difference_is_empty_though_they_are_unequal) {
  string a, b{.width_factor = 1.00005};

  EXPECT_FALSE(a == b);
  EXPECT_TRUE(holds_nothing(merge(a, b)));
}

TEST(Merge, holds_the_ratio_of_heights_which_overwrites_when_it_is_applied) {
  string a{.height = 2.0, .height_kind = 0}, b{.height = 3.0, .height_kind = 0};

  auto change = merge(a, b);
  ASSERT_TRUE(change.height);
  EXPECT_EQ(*change.height, std::pair(1.5, 1u));

  auto applied = applied_to(a, change);
  EXPECT_EQ(applied.height, 1.5);
  EXPECT_EQ(applied.height_kind, 1u);
}

TEST(Merge, holds_a_ratio_of_one_where_only_the_kind_of_height_differs) {
  auto change = merge(string{.height = 2.0, .height_kind = 0}, string{.height = 2.0, .height_kind = 1});

  EXPECT_EQ(change.height, (std::optional(std::pair(1.0, 1u))));
}

TEST(Merge, takes_the_fields_that_differ_from_the_second_record) {
  string b{.font = u"txt.shx",
           .pitch = 34,
           .flags = flag_italic | flag_overline,
           .charset = 204,
           .align = 2,
           .is_shx = true,
           .color = {.kind = 0, .index = 1},
           .width_factor = 0.8,
           .oblique = 0.25,
           .tracking = 1.5};

  auto applied = applied_to(string{.flags = flag_bold}, merge(string{.flags = flag_bold}, b));

  EXPECT_TRUE(applied == b);
}

TEST(IsDefaultFormat, speaks_of_the_font_only_and_not_of_its_being_a_shape_font) {
  EXPECT_TRUE(is_default_format({.height = std::pair(2.0, 1u), .is_shx = true, .underline = true}));
  EXPECT_FALSE(is_default_format({.font = u""}));
  EXPECT_FALSE(is_default_format({.pitch = 0}));
  EXPECT_FALSE(is_default_format({.charset = 0}));
  EXPECT_FALSE(is_default_format({.bold = false}));
  EXPECT_FALSE(is_default_format({.italic = false}));
}

TEST(ApplyTo, unset_fields_leave_the_record_alone) {
  string format{.height = 3.0, .font = u"Arial", .flags = flag_bold | flag_underline};

  EXPECT_TRUE(applied_to(format, string_partial()) == format);
}

TEST(ApplyTo, a_false_flag_clears_its_bit_alone) {
  string format{.flags = flag_bold | flag_underline};

  EXPECT_EQ(applied_to(format, {.underline = false}).flags, flag_bold);
}

TEST(ApplyTo, set_fields_of_a_change_override_those_of_another) {
  string_partial a{.font = u"A", .bold = true, .italic = true}, b{.font = u"B", .bold = false};

  auto both = applied_to(a, b);

  EXPECT_EQ(both.font, u"B");
  EXPECT_TRUE(bool(!both.bold));
  EXPECT_TRUE(bool(both.italic));
}

TEST(Intersection, of_a_set_field_with_an_unset_one_is_unset) {
  auto set = to_partial(string{.font = u"Arial"});

  EXPECT_TRUE(holds_nothing(intersection(set, string_partial())));
  EXPECT_TRUE(holds_nothing(intersection(string_partial(), set)));
}

TEST(Intersection, of_an_indeterminate_flag_with_anything_is_indeterminate) {
  EXPECT_TRUE(indeterminate(intersection({.bold = indeterminate}, {.bold = true}).bold));
  EXPECT_TRUE(indeterminate(intersection({.bold = false}, {.bold = indeterminate}).bold));
  EXPECT_TRUE(indeterminate(intersection({.bold = indeterminate}, {.bold = indeterminate}).bold));
}

TEST(Intersection, keeps_what_both_hold_alike) {
  auto a = to_partial(string{.height = 2.0, .font = u"Arial", .flags = flag_bold});
  auto b = to_partial(string{.height = 2.00005, .font = u"Arial", .flags = flag_italic});

  auto common = intersection(a, b);

  EXPECT_EQ(common.height, a.height);
  EXPECT_EQ(common.font, u"Arial");
  EXPECT_TRUE(indeterminate(common.bold));
  EXPECT_TRUE(indeterminate(common.italic));
  EXPECT_TRUE(bool(!common.underline));
}
