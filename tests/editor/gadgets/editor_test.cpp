#include "editor/gadgets/editor.h"

#include <gtest/gtest.h>

#include "editor/gadgets/column.h"
#include "editor/gadgets/handles.h"
#include "editor/gadgets/shown_paragraph.h"
#include "editor/gadgets/tab_area.h"
#include "editor/gadgets/tabulation.h"
#include "od/gi/OdGiRecorder.h"
#include "od/gi/OdGsView.h"
#include "tests/editor/gadgets/laid_out.h"

namespace {

const mtext::column& column_of(const laid_out& drawn, std::size_t index) {
  return dynamic_cast<const mtext::column&>(*drawn.named(u"column").at(index));
}

/// What a view with the pixel size of the layout shows.
std::string picture_of(mtext::editor& root) {
  OdGsView view;
  view.setDeviceRect({0, 0, 100, 100});
  view.setView({0, 0, 1}, {0, 0, 0}, {0, 1, 0}, 100 * root.scale, 100 * root.scale);
  OdGiRecorder pen;
  const OdGiDefaultContext context;
  OdGiViewportDraw draw(pen, context, view);
  micui::draw_tree(root, draw);
  return pen.describe();
}

}  // namespace

TEST(Editor, box_is_as_wide_as_all_columns_and_hangs_down) {
  const laid_out three(3, fixed_columns(3, 10, 2, 7), 5);
  EXPECT_EQ(three.root->name, u"mtext");
  EXPECT_EQ(three.root->width, 34);
  EXPECT_EQ(three.root->height, -7);
  EXPECT_EQ(three.named(u"column").size(), 3u);
}

TEST(Editor, anchor_lags_one_layout_behind_the_box_and_is_the_origin_at_first) {
  laid_out fresh(1, fixed_columns(1, 40, 0, 10), 5, 8);
  const auto root = odNew<mtext::editor>();
  root->create_children();
  root->text = &fresh.text;
  root->settings = fresh.text.info.columns;
  root->attach(8);
  root->layout();
  EXPECT_EQ(root->anchor, (OdGePoint2d{0, 0}));
  root->settings.width = 60;
  root->layout();
  EXPECT_EQ(root->anchor, (OdGePoint2d{40, -10}));
  root->layout();
  EXPECT_EQ(root->anchor, (OdGePoint2d{60, -10}));
}

TEST(Editor, has_a_dot_from_two_columns_on_unless_they_are_centred) {
  EXPECT_TRUE(laid_out(1, fixed_columns(1, 10, 2, 7), 5).named(u"dot").empty());
  EXPECT_EQ(laid_out(2, fixed_columns(2, 10, 2, 7), 5).named(u"dot").size(), 1u);
  EXPECT_TRUE(laid_out(2, fixed_columns(2, 10, 2, 7), 5, 1).named(u"dot").empty());
}

TEST(Editor, handles_of_the_left_half_of_centred_columns_stand_on_their_left) {
  const laid_out three(3, fixed_columns(3, 10, 2, 7), 5, 1);
  EXPECT_EQ(column_of(three, 0).horizontal, 3);
  EXPECT_EQ(column_of(three, 1).horizontal, 1);
  EXPECT_EQ(column_of(three, 2).horizontal, 1);
  EXPECT_EQ(column_of(three, 0).find(u"sizer")->x, 0);
  EXPECT_EQ(column_of(three, 2).find(u"sizer")->x, 5);
}

TEST(Editor, a_text_that_runs_over_its_box_has_column_extents_of_its_height) {
  const laid_out over(1, fixed_columns(1, 10, 0, 7), 9);
  ASSERT_EQ(over.named(u"column extents").size(), 1u);
  EXPECT_EQ(over.named(u"column extents")[0]->height, -10);
  EXPECT_TRUE(laid_out(1, fixed_columns(1, 10, 0, 7), 7).named(u"column extents").empty());
}

TEST(Editor, a_manual_column_without_a_height_is_as_tall_as_its_text) {
  const laid_out two(2, {.width = 10, .gutter = 2, .kind = 1, .heights = {7, 0}}, 9);
  EXPECT_EQ(column_of(two, 0).height, -7);
  EXPECT_EQ(column_of(two, 1).height, -9);
}

TEST(Editor, corner_of_the_grip_and_its_cursor_follow_the_attachment) {
  const auto grip_of = [](int attachment) {
    const laid_out one(1, fixed_columns(1, 10, 0, 7), 5, attachment);
    const auto grip = column_of(one, 0).find(u"sizer");
    const auto& shape = dynamic_cast<const mtext::grip_handle&>(*grip);
    return std::pair(shape.corner, shape.cursor);
  };
  EXPECT_EQ(grip_of(0), std::pair(1u, 2u));
  EXPECT_EQ(grip_of(2), std::pair(2u, 3u));
  EXPECT_EQ(grip_of(6), std::pair(0u, 3u));
  EXPECT_EQ(grip_of(8), std::pair(3u, 2u));
}

TEST(Editor, every_layout_sets_the_tab_switch_back_to_left_stops) {
  const laid_out one(1, fixed_columns(1, 10, 0, 7), 5);
  one.root->child<mtext::tabulation>(u"tab switch")->kind = 2;
  one.root->layout();
  EXPECT_EQ(one.root->child<mtext::tabulation>(u"tab switch")->kind, 0u);
}

TEST(Editor, insides_of_permanent_gadgets_are_rebuilt_by_a_zoom_alone) {
  const laid_out one(1, fixed_columns(1, 10, 0, 7), 5);
  const auto arrow = one.root->find(u"first");
  one.root->settings.width = 50;
  one.root->layout();
  EXPECT_EQ(arrow->width, 5);
  one.root->scale = 1.5;
  one.root->layout();
  EXPECT_EQ(arrow->width, 15);
}

TEST(Editor, draws_its_ruler_below_the_handles_in_their_colours) {
  const laid_out one(1, fixed_columns(1, 40, 0, 10), 5);
  const std::string picture = picture_of(*one.root);
  const auto ruler = picture.find("polygon (-10,2) (50,2) (50,14) (-10,14) rgb 149,164,191");
  const auto arrow = picture.find("rgb 64,64,64");
  const auto border =
      picture.find("polyline (-0.5,0.5) (40.5,0.5) (40.5,-10.5) (-0.5,-10.5) (-0.5,0.5) rgb 76,76,94");
  const auto strip = picture.find("polygon (0,3) (40,3) (40,13) (0,13) rgb 220,220,220");
  EXPECT_EQ(ruler, 0u);
  ASSERT_NE(strip, std::string::npos);
  EXPECT_LT(arrow, border);
  EXPECT_LT(border, strip);
}

TEST(Editor, draws_the_guide_line_dashed_and_nothing_else) {
  laid_out one(1, fixed_columns(1, 40, 0, 10), 5);
  EXPECT_EQ(picture_of(*one.root).find("*dashes"), std::string::npos);
  one.root->guide = mtext::tab_guide{.stop = {.position = 4, .kind = 0, .decimal_char = u' '}, .column = 0};
  one.root->layout();
  const std::string picture = picture_of(*one.root);
  EXPECT_NE(
      picture.find(
          "polyline (9.975,0) (10.025,0) (10.025,-10) (9.975,-10) (9.975,0) color 7 linetype *dashes\n"),
      std::string::npos);
  EXPECT_EQ(picture.find("*dashes"), picture.rfind("*dashes"));
}

TEST(Editor, shows_a_guided_stop_in_the_column_of_the_guide) {
  laid_out two(2, fixed_columns(2, 20, 2, 10), 5);
  two.root->guide = mtext::tab_guide{.stop = {.position = 4, .kind = 2, .decimal_char = u' '}, .column = 1};
  two.root->layout();
  const auto strips = two.named(u"tab area");
  EXPECT_TRUE(dynamic_cast<const mtext::tab_area&>(*strips[0]).tabs.empty());
  EXPECT_EQ(dynamic_cast<const mtext::tab_area&>(*strips[1]).tabs.size(), 1u);
  EXPECT_EQ(two.named(u"tab guide line").size(), 1u);
}

TEST(ShownParagraph, of_a_column_is_that_of_the_first_selection_in_its_half_open_span) {
  laid_out two(2, fixed_columns(2, 20, 2, 10), 5);
  two.text.columns[0].last = 5;
  two.text.columns[1].first = 5;
  two.text.columns[1].last = 9;
  two.text.marks.push_back(new mtext::marks::selection(5));
  EXPECT_EQ(mtext::shown_paragraph(two.text, 0), nullptr);
  EXPECT_EQ(mtext::shown_paragraph(two.text, 2), nullptr) << "there is no such column";
  two.text.marks.clear();
  two.text.marks.push_back(new mtext::marks::selection(9));
  EXPECT_EQ(mtext::shown_paragraph(two.text, 1), nullptr) << "a caret at the end of the text";
}
