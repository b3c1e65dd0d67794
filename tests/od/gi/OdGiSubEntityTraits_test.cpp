#include "od/gi/OdGiSubEntityTraits.h"

#include <gtest/gtest.h>

TEST(OdGiSubEntityTraits, begin_by_layer_on_layer_0_and_unfilled) {
  OdGiSubEntityTraits traits;
  EXPECT_TRUE(traits.trueColor().isByLayer());
  EXPECT_EQ(traits.layer(), u"0");
  EXPECT_EQ(traits.fillType(), kOdGiFillNever);
  EXPECT_EQ(traits.transparency().alpha(), 255);
  EXPECT_EQ(traits.lineType(), u"ByLayer");
  EXPECT_EQ(traits.lineWeight(), -1);
}

TEST(OdGiSubEntityTraits, are_saved_by_a_copy_and_restored_by_assigning_it) {
  OdGiSubEntityTraits traits;
  OdGiSubEntityTraits saved = traits;
  traits.setColor(3);
  traits.setFillType(kOdGiFillAlways);
  EXPECT_NE(traits, saved);
  traits = saved;
  EXPECT_EQ(traits.color(), 256);
}

TEST(OdGiSubEntityTraits, take_a_colour_of_any_method) {
  OdGiSubEntityTraits traits;
  traits.setTrueColor(OdCmEntityColor(0, 100, 200));
  EXPECT_TRUE(traits.trueColor().isByColor());
  traits.setTrueColor(OdCmEntityColor::fromIndex(7));
  EXPECT_EQ(traits.color(), 7);
}

TEST(OdGiTransparency, is_a_word_of_method_and_alpha) {
  EXPECT_EQ(OdGiTransparency::fromAlpha(120).word(), 0x2000078u);
  EXPECT_EQ(OdGiTransparency(0x2000078).alpha(), 120);
  EXPECT_EQ(OdGiTransparency(0x1000000).alpha(), 255) << "by block: opaque until it is known better";
}

TEST(OdGiSubEntityTraits, inside_a_block_by_block_means_what_the_reference_has) {
  OdGiSubEntityTraits reference;
  reference.setColor(1);
  reference.setLayer(u"Furniture");
  reference.setLineType(u"DASHED");
  reference.setLineWeight(50);

  OdGiSubEntityTraits inside = OdGiSubEntityTraits::insideBlock(reference);
  EXPECT_TRUE(inside.trueColor().isByLayer());
  EXPECT_EQ(inside.layer(), u"Furniture");
  inside.setColor(0);
  inside.setLineType(u"BYBLOCK");
  inside.setLineWeight(OdGiSubEntityTraits::kLineWeightByBlock);
  EXPECT_EQ(inside.color(), 1);
  EXPECT_EQ(inside.lineType(), u"DASHED");
  EXPECT_EQ(inside.lineWeight(), 50);

  inside.setLayer(u"Walls");
  EXPECT_EQ(inside.layer(), u"Walls");
  inside.setLayer(u"0");
  EXPECT_EQ(inside.layer(), u"Furniture");
}

TEST(OdGiSubEntityTraits, outside_of_blocks_by_block_stays_what_it_is) {
  OdGiSubEntityTraits traits;
  traits.setColor(0);
  EXPECT_TRUE(traits.trueColor().isByBlock());
}
