#include "od/cm/OdCmEntityColor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "od/cm/palette.h"

namespace {

/// Red, green and blue of the index by the rule of the colour wheel: a step of 15 degrees each ten indices.
std::uint32_t byRule(int index) {
  constexpr double kBrightness[] = {255, 204, 153, 127, 76};
  double hue = (index - 10) / 10 * 15 / 60.0;
  bool pale = index % 2 != 0;
  double brightness = kBrightness[index % 10 / 2];
  std::uint32_t rgb = 0;
  for (double offset : {0.0, 4.0, 2.0}) {
    double distance = std::abs(std::remainder(hue + offset, 6.0));
    double part = std::clamp(2.0 - distance, 0.0, 1.0);
    if (pale) part = (part + 1) / 2;
    rgb = rgb << 8 | static_cast<std::uint32_t>(part * brightness + 1e-9);
  }
  return rgb;
}

}  // namespace

TEST(Palette, follows_the_colour_wheel_from_10_to_249) {
  for (int index = 10; index < 250; ++index)
    EXPECT_EQ(odPaletteColor(index), byRule(index)) << "index " << index;
}

TEST(Palette, has_the_named_colours_first_and_greys_last) {
  EXPECT_EQ(odPaletteColor(1), 0xFF0000u);
  EXPECT_EQ(odPaletteColor(7), 0xFFFFFFu);
  EXPECT_EQ(odPaletteColor(250), 0x333333u);
  EXPECT_EQ(odPaletteColor(255), 0xFFFFFFu);
}

TEST(Palette, nearest_index_of_a_palette_colour_is_one_of_that_colour) {
  for (int index = 1; index <= 255; ++index)
    EXPECT_EQ(odPaletteColor(odNearestPaletteIndex(odPaletteColor(index))), odPaletteColor(index));
  EXPECT_EQ(odNearestPaletteIndex(0xFE0101), 1);
}

TEST(OdCmEntityColor, indices_0_and_256_mean_block_and_layer) {
  EXPECT_TRUE(OdCmEntityColor::fromIndex(0).isByBlock());
  EXPECT_TRUE(OdCmEntityColor::fromIndex(256).isByLayer());
  EXPECT_EQ(OdCmEntityColor::fromIndex(3).trueColor(), 0x00FF00u);
}

TEST(OdCmEntityColor, raw_values_of_files_survive_the_trip) {
  for (std::uint32_t raw : {0xC0000000u, 0xC1000000u, 0xC2123456u, 0xC3000005u, 0xC3000101u, 0xC8000000u})
    EXPECT_EQ(OdCmEntityColor::fromRaw(raw).raw(), raw);
}

TEST(OdCmEntityColor, a_true_colour_has_a_nearest_index) {
  OdCmEntityColor color(255, 0, 0);
  EXPECT_TRUE(color.isByColor());
  EXPECT_EQ(color.colorIndex(), 1);
  EXPECT_EQ(color.trueColor(), 0xFF0000u);
}
