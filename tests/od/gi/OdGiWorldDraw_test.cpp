#include "od/gi/OdGiWorldDraw.h"

#include <gtest/gtest.h>

#include <functional>

#include "od/gi/OdGiDrawable.h"
#include "od/gi/OdGiRecorder.h"
#include "od/gi/OdGsView.h"

namespace {

/// A line on a layer, in a colour.
class Line : public OdGiDrawableImpl<> {
 public:
  Line(int color, OdString layer) : m_color(color), m_layer(std::move(layer)) {}

  unsigned setAttributes(OdGiDrawableTraits& traits) override {
    traits.setLayer(m_layer);
    traits.setColor(m_color);
    return 0;
  }
  bool worldDraw(OdGiWorldDraw& draw) override {
    draw.geometry().polyline({{0, 0, 0}, {1, 0, 0}});
    draw.subEntityTraits().setColor(6);
    return true;
  }

 private:
  int m_color;
  OdString m_layer;
};

/// A reference that draws parts ten units to the right.
class Reference : public Line {
 public:
  using Line::Line;
  std::vector<OdGiDrawablePtr> parts{};
  int refused = 0;

  bool worldDraw(OdGiWorldDraw& draw) override {
    draw.geometry().pushModelTransform(OdGeMatrix3d::translation({10, 0, 0}));
    for (auto& part : parts) refused += !draw.drawInBlock(*part);
    draw.geometry().popModelTransform();
    return true;
  }
};

/// Draws one pixel of the view.
class Pixel : public OdGiDrawableImpl<> {
 public:
  void viewportDraw(OdGiViewportDraw& draw) override {
    OdGePoint2d perUnit;
    draw.viewport().getNumPixelsInUnitSquare({}, perUnit);
    draw.geometry().polyline({{0, 0, 0}, {1 / perUnit.x, 0, 0}});
  }
};

class HiddenLayer : public OdGiDefaultContext {
 public:
  bool layerIsVisible(const OdString& layer) const override { return layer != u"Hidden"; }
};

std::string recorded(OdGiDrawable& drawable, const OdGiContext& context = OdGiDefaultContext(),
                     const OdGiViewport* view = nullptr) {
  OdGiRecorder recorder;
  recorder.record(drawable, context, view);
  return recorder.describe();
}

}  // namespace

TEST(OdGiWorldDraw, draws_with_the_attributes_of_the_drawable) {
  EXPECT_EQ(recorded(*odNew<Line>(3, u"Walls")), "polyline (0,0) (1,0) color 3 layer Walls\n");
}

TEST(OdGiWorldDraw, leaves_the_traits_as_they_were) {
  OdGiRecorder recorder;
  OdGiDefaultContext context;
  recorder.traits().setColor(2);
  OdGiWorldDraw(recorder, context).draw(*odNew<Line>(3, u"Walls"));
  EXPECT_EQ(recorder.traits().color(), 2);
}

TEST(OdGiWorldDraw, leaves_out_what_lies_on_a_hidden_layer) {
  EXPECT_EQ(recorded(*odNew<Line>(3, u"Hidden"), HiddenLayer()), "");
}

TEST(OdGiWorldDraw, parts_of_a_block_take_what_is_by_block_from_the_reference) {
  auto reference = odNew<Reference>(1, u"Furniture");
  reference->parts = {odNew<Line>(0, u"0"), odNew<Line>(256, u"Walls"), odNew<Line>(5, u"0")};
  EXPECT_EQ(recorded(*reference),
            "polyline (10,0) (11,0) color 1 layer Furniture\n"
            "polyline (10,0) (11,0) layer Walls\n"
            "polyline (10,0) (11,0) color 5 layer Furniture\n");
}

TEST(OdGiWorldDraw, by_block_goes_through_several_references) {
  auto inner = odNew<Reference>(0, u"0");
  inner->parts = {odNew<Line>(0, u"0")};
  auto outer = odNew<Reference>(4, u"Top");
  outer->parts = {inner};
  EXPECT_EQ(recorded(*outer), "polyline (20,0) (21,0) color 4 layer Top\n");
}

TEST(OdGiWorldDraw, refuses_blocks_that_nest_too_deep) {
  auto reference = odNew<Reference>(1, u"0");
  reference->parts = {reference};
  EXPECT_EQ(recorded(*reference), "");
  EXPECT_EQ(reference->refused, 1);
  reference->parts.clear();
}

TEST(OdGiWorldDraw, asks_for_the_viewport_draw_where_the_world_draw_leaves_it_open) {
  OdGsView view;
  view.setDeviceRect({0, 0, 100, 100});
  view.setView({0, 0, 1}, {0, 0, 0}, {0, 1, 0}, 50, 50);
  EXPECT_EQ(recorded(*odNew<Pixel>(), OdGiDefaultContext(), &view), "polyline (0,0) (0.5,0)\n");
  EXPECT_EQ(recorded(*odNew<Pixel>()), "") << "without a view there is nothing to see";
}

TEST(OdGiDrawable, keeps_the_memory_of_its_view) {
  auto pixel = odNew<Pixel>();
  OdGsCache memory;
  EXPECT_EQ(pixel->gsNode(), nullptr);
  pixel->setGsNode(&memory);
  EXPECT_EQ(pixel->gsNode(), &memory);
  EXPECT_TRUE(pixel->isKindOf(OdGiDrawable::desc()));
}
