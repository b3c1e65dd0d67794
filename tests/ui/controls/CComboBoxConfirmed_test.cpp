#include "ui/controls/CComboBoxConfirmed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

struct owned_sizes {
  explicit owned_sizes(std::vector<float> sizes) {
    box.setSizes(std::move(sizes));
    box.confirmed = [this](float size) {
      given.push_back(size);
      return takes;
    };
  }
  void confirm(std::u16string_view text) {
    box.edit().type(text);
    box.edit().enter();
  }

  CComboBoxConfirmed box;
  std::vector<float> given;
  bool takes = true;
};

}  // namespace

TEST(ComboBoxConfirmed, the_size_list_stays_sorted_when_2_5_is_added_to_1_and_3) {
  owned_sizes sizes({1, 3});
  sizes.confirm(u"2.5");
  EXPECT_THAT(sizes.box.sizes(), ElementsAre(1.0F, 2.5F, 3.0F));
  EXPECT_EQ(sizes.box.selected(), 1U);
  EXPECT_THAT(sizes.given, ElementsAre(2.5F));
}

TEST(ComboBoxConfirmed, a_size_that_is_in_the_list_is_not_added_again) {
  owned_sizes sizes({1, 3});
  sizes.confirm(u"3.0");
  EXPECT_THAT(sizes.box.sizes(), ElementsAre(1.0F, 3.0F));
}

TEST(ComboBoxConfirmed, a_text_that_is_no_number_is_0_and_stands_in_the_list) {
  owned_sizes sizes({1});
  sizes.confirm(u"abc");
  EXPECT_THAT(sizes.given, ElementsAre(0.0F));
  EXPECT_THAT(sizes.box.sizes(), ElementsAre(0.0F, 1.0F));
  EXPECT_EQ(sizes.box.edit().text(), u"abc");
}

TEST(ComboBoxConfirmed, a_number_is_read_up_to_what_is_none) {
  owned_sizes sizes({});
  sizes.confirm(u" 7.5mm");
  EXPECT_THAT(sizes.given, ElementsAre(7.5F));
}

TEST(ComboBoxConfirmed, numbers_that_a_size_cannot_hold_are_0) {
  owned_sizes sizes({});
  for (const char16_t* text : {u"1e300", u"inf", u"nan"}) sizes.confirm(text);
  EXPECT_THAT(sizes.given, ElementsAre(0.0F, 0.0F, 0.0F));
}

TEST(ComboBoxConfirmed, choosing_a_row_puts_its_number_into_the_box_and_confirms_it) {
  owned_sizes sizes({1, 2.5});
  sizes.box.choose(1);
  EXPECT_EQ(sizes.box.edit().text(), u"2.5");
  EXPECT_THAT(sizes.given, ElementsAre(2.5F));
  sizes.box.edit().leave();
  EXPECT_EQ(sizes.given.size(), 1U);
}

TEST(ComboBoxConfirmed, rows_show_six_digits) {
  owned_sizes sizes({0.1F, 1234567.0F});
  EXPECT_EQ(sizes.box.rowText(0), u"0.1");
  EXPECT_EQ(sizes.box.rowText(1), u"1.23457e+06");
}

TEST(ComboBoxConfirmed, a_size_that_the_owner_refuses_gives_way_to_the_one_before) {
  owned_sizes sizes({1, 3});
  sizes.box.edit().show(u"2");
  sizes.takes = false;
  sizes.box.choose(1);
  EXPECT_EQ(sizes.box.edit().text(), u"2");
  EXPECT_FALSE(sizes.box.selected());
  sizes.confirm(u"5");
  EXPECT_EQ(sizes.box.edit().text(), u"2");
}
