#include "ui/controls/CUpDownWithEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr spin_range kOblique{.factor = 1, .low = -80, .high = 80};
constexpr spin_range kWidth{.factor = 100, .low = 0.1, .high = 10};

/// A spin edit that notes what its owner is given.
struct owned_spin {
  explicit owned_spin(const spin_range& range, double value = 0) : spin(range, value) {
    spin.changed = [this](double now) {
      given.push_back(now);
      return takes;
    };
  }
  void confirm(std::u16string_view text) {
    spin.edit().type(text);
    spin.edit().enter();
  }
  const std::u16string& text() const { return spin.edit().text(); }

  CUpDownWithEdit spin;
  std::vector<double> given;
  bool takes = true;
};

}  // namespace

TEST(UpDownWithEdit, a_number_followed_by_a_letter_changes_nothing) {
  owned_spin box(kOblique, 15);
  box.confirm(u"30x");
  EXPECT_EQ(box.text(), u"30x");
  EXPECT_EQ(box.spin.position(), 15);
  EXPECT_THAT(box.given, IsEmpty());
}

TEST(UpDownWithEdit, two_hundred_typed_in_the_oblique_edit_gives_eighty_with_three_decimals) {
  owned_spin box(kOblique);
  box.confirm(u"200");
  EXPECT_EQ(box.text(), u"80.000");
  EXPECT_THAT(box.given, ElementsAre(80.0));
}

TEST(UpDownWithEdit, with_factor_100_a_half_hundredth_rounds_to_position_1_and_is_pulled_up_to_10) {
  owned_spin box(kWidth, 1);
  box.confirm(u"0.005");
  EXPECT_EQ(box.text(), u"0.100");
  EXPECT_EQ(box.spin.position(), 10);
  EXPECT_THAT(box.given, ElementsAre(0.1));
}

TEST(UpDownWithEdit, an_arrow_moves_one_step_and_stops_at_the_limits) {
  owned_spin box(kOblique, 79);
  box.spin.arrow(1);
  box.spin.arrow(1);
  EXPECT_EQ(box.text(), u"80.000");
  box.spin.arrow(-200);
  EXPECT_EQ(box.text(), u"-80.000");
  EXPECT_THAT(box.given, ElementsAre(80.0, 80.0, -80.0));
}

TEST(UpDownWithEdit, an_arrow_does_not_run_over_the_numbers_there_are) {
  owned_spin box(kOblique, 79);
  box.spin.arrow(INT32_MAX);
  EXPECT_EQ(box.spin.position(), 80);
}

TEST(UpDownWithEdit, what_the_program_sets_is_shown_rounded_and_not_given_to_the_owner) {
  owned_spin box(kWidth, 1);
  box.spin.set(1.236);
  EXPECT_EQ(box.text(), u"1.240");
  EXPECT_THAT(box.given, IsEmpty());
}

TEST(UpDownWithEdit, what_the_program_sets_may_lie_out_of_the_range_and_the_arrows_go_on_from_its_limit) {
  owned_spin box(kOblique);
  box.spin.set(85);
  EXPECT_EQ(box.text(), u"85.000");
  box.spin.arrow(-1);
  EXPECT_EQ(box.text(), u"79.000");
}

TEST(UpDownWithEdit, clearing_empties_the_text_and_the_arrows_go_on_from_the_lowest_value) {
  owned_spin box(kWidth, 1);
  box.spin.clear();
  EXPECT_EQ(box.text(), u"");
  EXPECT_THAT(box.given, IsEmpty());
  box.spin.arrow(1);
  EXPECT_EQ(box.text(), u"0.110");
}

TEST(UpDownWithEdit, leaving_a_cleared_box_confirms_nothing_and_enter_in_it_is_zero) {
  owned_spin box(kOblique, 30);
  box.spin.clear();
  box.spin.edit().leave();
  EXPECT_THAT(box.given, IsEmpty());
  box.spin.edit().enter();
  EXPECT_THAT(box.given, ElementsAre(0.0));
}

TEST(UpDownWithEdit, behind_a_number_beyond_16_bits_the_arrows_go_on_from_its_low_bits) {
  owned_spin box(kOblique);
  box.confirm(u"40000");
  EXPECT_EQ(box.text(), u"80.000");
  EXPECT_EQ(box.spin.spin().position(), -80);
  box.spin.arrow(1);
  EXPECT_EQ(box.text(), u"-79.000");
}

TEST(UpDownWithEdit, numbers_beyond_all_measure_are_pulled_to_the_nearest_limit) {
  owned_spin box(kOblique);
  for (const char16_t* text : {u"1e300", u"inf", u"1e999"}) {
    box.confirm(text);
    EXPECT_EQ(box.text(), u"80.000");
  }
  box.confirm(u"-1e300");
  EXPECT_EQ(box.text(), u"-80.000");
  box.confirm(u"nan");
  EXPECT_EQ(box.text(), u"nan");
}

TEST(UpDownWithEdit, a_value_that_the_owner_refuses_gives_way_to_the_one_before) {
  owned_spin box(kOblique, 15);
  box.takes = false;
  box.confirm(u"30");
  EXPECT_EQ(box.text(), u"15.000");
  box.spin.arrow(1);
  EXPECT_EQ(box.text(), u"15.000");
  EXPECT_EQ(box.spin.position(), 15);
}
