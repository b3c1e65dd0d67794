#include "ui/controls/CColorComboBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/resources/strings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct owned_colors {
  owned_colors() {
    resources::register_strings();
    box.changed = [this](const OdCmEntityColor& color) {
      given.push_back(controls::code_of(color));
      return takes;
    };
    box.pick = [this](const OdCmEntityColor& start) {
      starts.push_back(start);
      return picked;
    };
  }
  std::size_t custom() const { return box.codes().size() - 1; }

  CColorComboBox box;
  std::vector<color_code> given;
  std::vector<OdCmEntityColor> starts;
  std::optional<OdCmEntityColor> picked;
  bool takes = true;
};

}  // namespace

TEST(ColorComboBox, its_rows_are_by_layer_by_block_the_seven_standard_colors_and_custom) {
  owned_colors colors;
  EXPECT_THAT(colors.box.codes(), ElementsAre(0x1000100, 0x1000000, 0x1000001, 0x1000002, 0x1000003,
                                              0x1000004, 0x1000005, 0x1000006, 0x1000007, 0));
  EXPECT_EQ(colors.box.rowText(0), u"By layer");
  EXPECT_EQ(colors.box.rowText(1), u"By block");
  EXPECT_EQ(colors.box.rowText(2), u"Red");
  EXPECT_EQ(colors.box.rowText(8), u"White");
  EXPECT_EQ(colors.box.rowText(9), u"Custom...");
}

TEST(ColorComboBox, a_color_that_is_not_in_the_list_shows_an_empty_box_and_is_never_added) {
  owned_colors colors;
  colors.box.select(controls::index_code(1));
  colors.box.select(controls::index_code(30));
  EXPECT_FALSE(colors.box.selected());
  EXPECT_EQ(colors.box.codes().size(), 10U);
  EXPECT_THAT(colors.given, IsEmpty());
}

TEST(ColorComboBox, a_row_is_given_as_a_color) {
  owned_colors colors;
  colors.box.choose(2);
  colors.box.choose(0);
  EXPECT_THAT(colors.given, ElementsAre(controls::index_code(1), controls::kByLayerCode));
  EXPECT_EQ(colors.box.lastCode(), controls::kByLayerCode);
}

TEST(ColorComboBox, a_picked_color_gets_a_row_before_custom) {
  owned_colors colors;
  colors.picked = OdCmEntityColor(10, 20, 30);
  colors.box.choose(colors.custom());
  EXPECT_THAT(colors.given, ElementsAre(0x20A141E));
  EXPECT_EQ(colors.box.selected(), 9U);
  EXPECT_EQ(colors.box.rowText(9), u"10,20,30");
  EXPECT_EQ(colors.box.codes().back(), controls::kNoColor);
  colors.box.choose(colors.custom());
  EXPECT_EQ(colors.box.codes().size(), 11U);
}

TEST(ColorComboBox, each_method_of_a_picked_color_has_its_code) {
  owned_colors colors;
  for (const auto& color : {OdCmEntityColor(OdCmEntityColor::kByLayer),
                            OdCmEntityColor(OdCmEntityColor::kByBlock), OdCmEntityColor::fromIndex(30)}) {
    colors.picked = color;
    colors.box.choose(colors.custom());
  }
  EXPECT_THAT(colors.given, ElementsAre(0x1000100, 0x1000000, 0x100001E));
  EXPECT_EQ(colors.box.rowText(9), u"Color 30");
}

TEST(ColorComboBox, the_dialog_starts_with_by_block) {
  owned_colors colors;
  colors.box.choose(colors.custom());
  ASSERT_EQ(colors.starts.size(), 1U);
  EXPECT_TRUE(colors.starts[0].isByBlock());
}

TEST(ColorComboBox, a_cancelled_dialog_gives_the_last_color_back) {
  owned_colors colors;
  colors.box.choose(3);
  colors.box.choose(colors.custom());
  EXPECT_EQ(colors.box.selected(), 3U);
  EXPECT_THAT(colors.given, ElementsAre(controls::index_code(2), controls::index_code(2)));
}

TEST(ColorComboBox, a_second_dialog_does_not_open_while_one_is_open) {
  owned_colors colors, others;
  colors.box.pick = [&](const OdCmEntityColor&) {
    others.box.choose(others.custom());
    return colors.picked;
  };
  colors.box.choose(colors.custom());
  EXPECT_THAT(others.starts, IsEmpty());
  others.box.choose(others.custom());
  EXPECT_EQ(others.starts.size(), 1U);
}

TEST(ColorComboBox, the_by_layer_row_shows_the_color_of_the_layer_and_white_is_half_black) {
  owned_colors colors;
  colors.box.setLayerColor(controls::index_code(1));
  EXPECT_EQ(colors.box.rowSwatch(0), (controls::color_swatch{.rgb = 0xFF0000}));
  EXPECT_EQ(colors.box.rowSwatch(8), (controls::color_swatch{.rgb = 0xFFFFFF, .half_black = true}));
  EXPECT_EQ(colors.box.rowSwatch(9), (controls::color_swatch{.rgb = 0xFFFFFF}));
}

TEST(ColorComboBox, a_color_that_the_owner_refuses_gives_way_to_the_one_before) {
  owned_colors colors;
  colors.box.select(controls::index_code(1));
  colors.takes = false;
  colors.box.choose(5);
  EXPECT_EQ(colors.box.selected(), 2U);
  EXPECT_EQ(colors.box.lastCode(), controls::index_code(1));
}

TEST(ColorCode, what_stands_for_no_kind_of_color_is_unknown) {
  resources::register_strings();
  EXPECT_EQ(controls::name_of(0x3000000), u"Unknown");
  EXPECT_EQ(controls::name_of(controls::index_code(256)), u"By layer");
}

TEST(ColorCode, a_run_of_text_has_the_code_of_its_color) {
  EXPECT_EQ(controls::code_of(mtext::format::text_color{.kind = 0, .index = 256}), controls::kByLayerCode);
  EXPECT_EQ(controls::code_of(controls::text_color_of(OdCmEntityColor(1, 2, 3))), 0x2010203U);
  EXPECT_EQ(controls::text_color_of(OdCmEntityColor(1, 2, 3)).top, 0);
}

TEST(ColorComboBox, its_rows_are_told_apart_from_its_selection) {
  owned_colors colors;
  int listed = 0, shown = 0;
  colors.box.listed = [&] { ++listed; };
  colors.box.shown = [&] { ++shown; };
  colors.box.select(controls::index_code(1));
  colors.box.choose(2);
  EXPECT_EQ(listed, 0);
  EXPECT_EQ(shown, 2);
  colors.box.setLayerColor(controls::index_code(3));
  EXPECT_EQ(listed, 1);
  colors.picked = OdCmEntityColor(10, 20, 30);
  colors.box.choose(colors.custom());
  EXPECT_EQ(listed, 2);
  colors.box.choose(colors.custom());
  EXPECT_EQ(listed, 2);
}
