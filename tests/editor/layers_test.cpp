#include <gtest/gtest.h>

#include "editor/background.h"
#include "editor/highlight.h"
#include "host/key_code.h"
#include "od/gi/OdGiRecorder.h"
#include "tests/editor/edited_drawing.h"
#include "tests/editor/edited_text.h"

namespace {

std::vector<OdGiPrimitive> drawn_by(gadget_draw& layer, const OdGsView& view) {
  OdGiRecorder recorder;
  recorder.record(layer, OdGiDefaultContext(), &view);
  return recorder.primitives();
}

std::vector<OdGiPrimitive> drawn_by(edited_text& text, gadget_draw& layer) {
  return drawn_by(layer, text.application().document().view().gsView());
}

std::uint32_t sum(const OdCmEntityColor& color) { return color.red() + color.green() + color.blue(); }

}  // namespace

TEST(Tint, is_lighter_than_a_dark_background_and_darker_than_a_white_one) {
  EXPECT_GT(sum(editing::tinted({0, 0, 0})), 0U);
  EXPECT_LT(sum(editing::tinted({255, 255, 255})), 765U);
  EXPECT_EQ(editing::tinted({0, 0, 0}), OdCmEntityColor(25, 25, 25));
  EXPECT_EQ(editing::tinted({255, 255, 255}), OdCmEntityColor(229, 229, 229));
  EXPECT_EQ(editing::tinted({100, 150, 132}), OdCmEntityColor(115, 160, 144));
  EXPECT_EQ(editing::tinted({100, 150, 133}), OdCmEntityColor(90, 135, 119));
}

TEST(Layers, the_text_lies_below_the_caret_and_the_gadgets) {
  edited_text text("a|b");
  const auto& layers = text.application().document().view().overlay().layers();
  ASSERT_EQ(layers.size(), 3U);
  EXPECT_EQ(layers[0].drawable.get(), &text.session().layers().text());
  EXPECT_EQ(layers[0].priority, 512);
  EXPECT_EQ(layers[1].priority, 768);
}

TEST(Layers, the_text_layer_fills_each_column_and_draws_the_letters_above) {
  edited_text text("ab‖cd|", [] {
    auto info = wrapping(10);
    info.columns.kind = 2;
    info.columns.gutter = 2;
    info.columns.heights = {20};
    return info;
  }());
  const auto drawn = drawn_by(text, text.session().layers().text());
  ASSERT_GE(drawn.size(), 6U);
  EXPECT_EQ(drawn[0].describe(),
            "polygon (-0.75,-20.75) (10.75,-20.75) (10.75,0.75) (-0.75,0.75) rgb 25,25,25");
  EXPECT_EQ(drawn[1].describe(),
            "polygon (11.25,-20.75) (22.75,-20.75) (22.75,0.75) (11.25,0.75) rgb 25,25,25");
}

TEST(Layers, a_text_without_letters_gets_no_polygon) {
  edited_text text("|", wrapping(10));
  EXPECT_TRUE(drawn_by(text, text.session().layers().text()).empty());
}

TEST(Layers, a_mask_takes_its_own_colour_and_reach) {
  edited_text text("ab|", wrapping(10));
  text.text().background = {
      .on = true, .color = OdCmEntityColor(1, 2, 3), .use_drawing_background = false, .scale = 1.5};
  const auto drawn = drawn_by(text, text.session().layers().text());
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn[0].traits.trueColor(), OdCmEntityColor(1, 2, 3));
  EXPECT_DOUBLE_EQ(drawn[0].contours[0][0].x, -2.5 * (0.5 + 0.3));
}

TEST(Layers, a_caret_is_an_i_beam_of_three_lines_in_colour_7) {
  edited_text text("a|b[c]");
  const auto drawn = drawn_by(text, text.session().layers().caret());
  ASSERT_EQ(drawn.size(), 3U);
  for (const auto& line : drawn) {
    EXPECT_EQ(line.kind, OdGiPrimitive::kPolyline);
    EXPECT_EQ(line.traits.color(), 7);
  }
  EXPECT_DOUBLE_EQ(drawn[1].contours[0][0].x, 1.5);
  EXPECT_DOUBLE_EQ(drawn[0].contours[0][1].x - drawn[0].contours[0][0].x, 2 * 0.1 * (2.5 * 4 / 3));
}

TEST(Layers, a_selection_is_one_transparent_box_a_row) {
  edited_text text("a[b¶c]d|", wrapping(60));
  const auto drawn = drawn_by(text, text.session().layers().gadgets());
  ASSERT_EQ(drawn.size(), 2U);
  EXPECT_EQ(drawn[0].traits.trueColor(), OdCmEntityColor(0, 100, 200));
  EXPECT_EQ(drawn[0].traits.transparency().word(), 0x2000078U);
  EXPECT_EQ(drawn[0].traits.fillType(), kOdGiFillAlways);
  const auto boxes = editing::selection_boxes(text.text().text());
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_DOUBLE_EQ(boxes[0].left, 1.5);
  EXPECT_GT(boxes[0].right, 3.0);  // a break shows a fifth of its line's height
  EXPECT_DOUBLE_EQ(boxes[1].right, 1.5);
}

TEST(Layers, nothing_is_drawn_where_nothing_is_selected) {
  edited_text text("ab|");
  EXPECT_TRUE(drawn_by(text, text.session().layers().gadgets()).empty());
}

TEST(Layers, a_field_shows_a_white_box) {
  auto text = edited_text::on_codes("a%<F>%b");
  const auto drawn = drawn_by(text, text.session().layers().gadgets());
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ(drawn[0].traits.trueColor(), OdCmEntityColor(255, 255, 255));
}

TEST(Layers, of_a_session_that_is_over_draw_nothing) {
  OdSmartPtr<gadget_draw> layer;
  {
    edited_text text("ab|");
    layer = OdSmartPtr<gadget_draw>(&text.session().layers().text());
  }
  OdGiRecorder recorder;
  recorder.record(*layer);
  EXPECT_TRUE(recorder.primitives().empty());
}

TEST(Layers, the_text_is_drawn_where_the_entity_draws_it) {
  edited_drawing drawing;
  drawing.text->setContents(u"Ha{\\L\\H1.5x;ll} \\S1/2; \\S3#4;\\Pend");
  drawing.text->setRotation(0.5);
  drawing.text->setAttachment(OdDb::kMiddleCenter);
  OdGiRecorder entity;
  entity.record(*drawing.text);
  smart_edit& session = drawing.begin();
  auto edited = drawn_by(session.layers().text(), drawing.application.document().view().gsView());
  ASSERT_FALSE(entity.primitives().empty());
  ASSERT_EQ(edited.size(), entity.primitives().size() + 1);  // the background
  for (std::size_t i = 0; i < entity.primitives().size(); ++i) {
    const auto& a = entity.primitives()[i];
    const auto& b = edited[i + 1];
    ASSERT_EQ(a.kind, b.kind);
    EXPECT_NEAR(a.contours[0][0].x, b.contours[0][0].x, 1e-9);
    EXPECT_NEAR(a.contours[0][0].y, b.contours[0][0].y, 1e-9);
  }
}

TEST(Blink, the_caret_blinks_every_400_ms) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  const auto& view = drawing.application.document().view().gsView();
  const auto shown = [&] { return !drawn_by(session.layers().caret(), view).empty(); };
  EXPECT_TRUE(shown());
  drawing.application.ticks().advance(350);
  EXPECT_TRUE(shown());
  drawing.application.ticks().advance(50);
  EXPECT_FALSE(shown());
  drawing.application.ticks().advance(400);
  EXPECT_TRUE(shown());
}

TEST(Blink, the_caret_stays_on_while_a_key_is_held) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  const auto& view = drawing.application.document().view().gsView();
  drawing.send({.number = WM_KEYDOWN, .code = VK_RIGHT});
  drawing.application.ticks().advance(400);
  EXPECT_FALSE(drawn_by(session.layers().caret(), view).empty());
  drawing.send({.number = WM_KEYUP, .code = VK_RIGHT});
  EXPECT_TRUE(drawn_by(session.layers().caret(), view).empty());
}

TEST(Blink, a_phase_that_was_not_painted_is_not_skipped) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  drawing.application.ticks().advance(800);
  EXPECT_TRUE(drawn_by(session.layers().caret(), drawing.application.document().view().gsView()).empty());
}
