#include "host/view_overlay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

std::vector<const OdGiDrawable*> drawn(const HostViewOverlay& overlay) {
  std::vector<const OdGiDrawable*> order;
  for (const HostViewOverlay::Layer& layer : overlay.layers()) order.push_back(layer.drawable.get());
  return order;
}

class Overlay : public testing::Test {
 protected:
  OdGiDrawablePtr text = odNew<OdGiDrawable>();
  OdGiDrawablePtr caret = odNew<OdGiDrawable>();
  OdGiDrawablePtr gadget = odNew<OdGiDrawable>();
  HostViewOverlay overlay;
};

TEST_F(Overlay, drawables_stand_by_order_then_priority_then_as_they_came) {
  overlay.add(*caret, 4, 768);
  overlay.add(*gadget, 4, 768);
  overlay.add(*text, 4, 512);
  const OdGiDrawablePtr low = odNew<OdGiDrawable>();
  overlay.add(*low, 3, 1024);
  EXPECT_THAT(drawn(overlay), testing::ElementsAre(low.get(), text.get(), caret.get(), gadget.get()));
}

TEST_F(Overlay, a_drawable_that_is_there_moves_to_its_new_place) {
  overlay.add(*caret, 4, 768);
  overlay.add(*text, 4, 512);
  overlay.add(*caret, 4, 100);
  EXPECT_THAT(drawn(overlay), testing::ElementsAre(caret.get(), text.get()));
}

TEST_F(Overlay, it_holds_a_reference_until_the_drawable_is_removed) {
  overlay.add(*text, 4, 512);
  EXPECT_EQ(text->numRefs(), 2);
  overlay.remove(*text);
  EXPECT_EQ(text->numRefs(), 1);
}

TEST_F(Overlay, only_what_was_invalidated_is_out_of_date_after_painting) {
  overlay.add(*text, 4, 512);
  overlay.add(*caret, 4, 768);
  overlay.setPainted();
  EXPECT_FALSE(overlay.isInvalid());
  overlay.invalidate(*caret);
  EXPECT_TRUE(overlay.isInvalid(*caret));
  EXPECT_FALSE(overlay.isInvalid(*text));
}

TEST_F(Overlay, the_place_of_a_removed_drawable_has_to_be_painted) {
  overlay.add(*text, 4, 512);
  overlay.setPainted();
  overlay.remove(*text);
  EXPECT_TRUE(overlay.isInvalid());
  overlay.setPainted();
  EXPECT_FALSE(overlay.isInvalid());
}

}  // namespace
