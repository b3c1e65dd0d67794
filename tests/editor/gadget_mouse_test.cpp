#include "editor/gadget_mouse.h"

#include <gtest/gtest.h>

#include <numbers>
#include <random>

#include "host/key_code.h"
#include "tests/editor/edited_drawing.h"

namespace {

/// A mouse in the view of a drawing whose pixels are a tenth of a unit. Points are in text coordinates: the
/// text is 2.5 high and 40 wide, so the strip of its ruler lies from 0.6 to 2.6 above it, with a tick each
/// 2.5.
struct mouse_at_work : edited_drawing {
  mouse_at_work() {
    application.document().view().gsView().setView({30, 15, 1}, {30, 15, 0}, {0, 1, 0}, 80, 60);
  }

  void event(unsigned number, double x, double y) {
    send({.number = number, .point = session->editable().frame().text_to_world() * OdGePoint3d{x, y, 0}});
  }
  void press(double x, double y) { event(WM_LBUTTONDOWN, x, y); }
  void move(double x, double y) { event(WM_MOUSEMOVE, x, y); }
  void release(double x, double y) { event(WM_LBUTTONUP, x, y); }
  void drag(OdGePoint2d from, OdGePoint2d to) {
    press(from.x, from.y);
    move(to.x, to.y);
    release(to.x, to.y);
  }

  const mtext::column_settings& columns() const { return session->editable().text().info.columns; }
  std::vector<double> tabs() const {
    std::vector<double> positions;
    for (const auto& stop : session->editable().text().format.tabs) positions.push_back(stop.position);
    return positions;
  }
};

using at = std::vector<double>;

}  // namespace

TEST(GadgetMouse, a_drag_of_the_width_sizer_wraps_the_text_anew_in_one_undo_step) {
  mouse_at_work hand;
  hand.text->setContents(u"Hall and stairs");
  hand.begin();
  const std::size_t lines = hand.session->editable().lineCount();
  hand.press(41, 1.6);
  hand.move(20, 1.6);
  hand.move(9, 1.6);
  EXPECT_EQ(hand.columns().width, 9);
  EXPECT_GT(hand.session->editable().lineCount(), lines);
  hand.release(9, 1.6);
  EXPECT_EQ(hand.session->undo().undo_count(), 1u);
  hand.session->undoStep();
  EXPECT_EQ(hand.columns().width, 40);
  EXPECT_EQ(hand.session->editable().lineCount(), lines);
}

TEST(GadgetMouse, what_a_drag_changed_is_written_into_the_entity) {
  mouse_at_work hand;
  hand.begin();
  hand.drag({41, 1.6}, {25, 1.6});
  hand.session->finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(hand.text->width(), 25);
  EXPECT_EQ(hand.text->location(), (OdGePoint3d{10, 20, 0}));
}

TEST(GadgetMouse, a_drag_on_a_turned_text_runs_along_its_lines) {
  mouse_at_work hand;
  hand.text->setRotation(std::numbers::pi / 9);
  hand.begin();
  hand.drag({41, 1.6}, {25, 1.6});
  EXPECT_NEAR(hand.columns().width, 25, 1e-9);
}

TEST(GadgetMouse, a_drag_leaves_the_insertion_point_of_a_centred_text_where_it_is) {
  mouse_at_work hand;
  hand.text->setAttachment(OdDb::kTopCenter);
  hand.begin();
  EXPECT_NEAR(hand.session->editable().origin().x, -10, 1e-9);
  hand.drag({41, 1.6}, {35, 1.6});
  EXPECT_NEAR(hand.columns().width, 30, 1e-9);
  EXPECT_NEAR(hand.session->editable().origin().x, -5, 1e-9);
  EXPECT_EQ(hand.session->editable().frame().location, (OdGePoint3d{10, 20, 0}));
}

TEST(GadgetMouse, no_height_of_the_columns_makes_a_centred_box_jump) {
  mouse_at_work hand;
  hand.text->setContents(
      u"Hall and stairs up to the roof and down to the cellar with a landing at every floor");
  hand.text->setColumnType(OdDb::kStaticColumns);
  hand.text->setColumnCount(2);
  hand.text->setColumnWidth(20);
  hand.text->setColumnGutterWidth(4);
  hand.text->setHeight(10);
  hand.text->setAttachment(OdDb::kMiddleLeft);
  hand.begin();
  ExMTextEditable& text = hand.session->editable();
  mtext::column_settings columns = hand.columns();
  for (double height = 10; height < 50; ++height) {
    columns.heights.assign(columns.heights.size(), height);
    text.setColumns(columns);
    text.endOfEdit(/*relayout=*/true);
    EXPECT_NEAR(text.origin().y - height / 2, 20, 1) << height << ": at most half the leading of a line";
  }
}

TEST(GadgetMouse, a_press_in_the_strip_adds_a_stop_and_a_drag_off_the_ruler_removes_it) {
  mouse_at_work hand;
  hand.begin();
  hand.drag({10.2, 1.6}, {10.2, 1.6});
  EXPECT_EQ(hand.tabs(), at{4});
  hand.drag({10.2, 1.6}, {20.2, 1.6});
  EXPECT_EQ(hand.tabs(), at{8});
  hand.drag({20.2, 1.6}, {20.2, 9});
  EXPECT_EQ(hand.tabs(), at{});
}

TEST(GadgetMouse, a_stop_dragged_out_and_back_in_with_the_button_held_shows_again) {
  mouse_at_work hand;
  hand.begin();
  hand.press(10, 1.6);
  hand.move(10, 9);
  EXPECT_EQ(hand.tabs(), at{4}) << "it stays where it was last inside";
  hand.move(15, 1.6);
  hand.release(15, 1.6);
  EXPECT_EQ(hand.tabs(), at{6});
}

TEST(GadgetMouse, a_drag_of_an_indent_handle_moves_the_paragraph_by_whole_ticks) {
  mouse_at_work hand;
  hand.begin();
  hand.drag({0.1, 1}, {7.4, 1});
  EXPECT_EQ(hand.session->editable().text().format.left, 3);
  EXPECT_EQ(hand.session->editable().text().format.indent, -3);
  EXPECT_FALSE(hand.session->gadgets().root().guide);
}

TEST(GadgetMouse, a_drag_that_outlived_its_paragraphs_touches_nothing) {
  mouse_at_work hand;
  hand.begin();
  hand.type(u"a");
  hand.send({.number = WM_KEYDOWN, .code = VK_RETURN});
  hand.send({.number = WM_KEYUP, .code = VK_RETURN});
  hand.type(u"b");
  hand.press(10, 1.6);
  for (int i = 0; i < 3; ++i) hand.session->undoStep();
  ASSERT_EQ(hand.session->editable().lineText(0), u"Hall");
  hand.move(15, 1.6);
  hand.release(15, 9);
  EXPECT_EQ(hand.tabs(), at{});
}

TEST(GadgetMouse, a_press_on_the_bare_ruler_does_nothing_and_one_beside_it_ends_the_session) {
  mouse_at_work hand;
  hand.begin();
  hand.press(-1.9, 0.5);
  EXPECT_FALSE(hand.session->exitPoint());
  hand.press(60, 30);
  EXPECT_TRUE(hand.session->exitPoint());
}

TEST(GadgetMouse, the_cursor_tells_what_can_be_dragged_where) {
  mouse_at_work hand;
  hand.begin();
  const auto over = [&](double x, double y) {
    hand.event(WM_SETCURSOR, x, y);
    return hand.application.window().cursor();
  };
  EXPECT_EQ(over(1, -1), IDC_IBEAM);
  EXPECT_EQ(over(41, 1.6), IDC_SIZEWE);
  EXPECT_EQ(over(0, 0.3), IDC_SIZENS);
  EXPECT_EQ(over(39.9, 0.1), IDC_SIZENWSE);
  EXPECT_EQ(over(60, 30), IDC_ARROW);
}

TEST(GadgetMouse, a_long_text_is_drawn_as_boxes_until_the_sizer_is_let_go) {
  mouse_at_work hand;
  hand.text->setContents(OdString(std::u16string(5000, u'a')));
  hand.begin();
  hand.press(41, 1.6);
  EXPECT_FALSE(hand.session->editable().isDraft());
  hand.move(30, 1.6);
  EXPECT_TRUE(hand.session->editable().isDraft());
  hand.release(30, 1.6);
  EXPECT_FALSE(hand.session->editable().isDraft());
}

TEST(GadgetMouse, a_drag_of_a_handle_tells_its_value_beside_the_mouse_until_it_is_let_go) {
  mouse_at_work hand;
  hand.begin();
  const WindowlessWindow& window = hand.application.window();
  hand.press(41, 1.6);
  EXPECT_EQ(window.tip(), u"");
  hand.move(25, 1.6);
  EXPECT_EQ(window.tip(), u"Width: 25 (10 text heights)");
  hand.move(30, 1.6);
  EXPECT_EQ(window.tip(), u"Width: 30 (12 text heights)");
  hand.release(30, 1.6);
  EXPECT_EQ(window.tip(), u"");
}

TEST(GadgetMouse, a_drag_in_the_strip_tells_the_place_of_the_stop_or_the_indent) {
  mouse_at_work hand;
  hand.begin();
  const WindowlessWindow& window = hand.application.window();
  hand.press(10, 1.6);
  hand.move(20.2, 1.6);
  EXPECT_EQ(window.tip(), u"Tab stop: 20 (8 text heights)");
  hand.release(20.2, 1.6);
  hand.press(0.1, 1);
  hand.move(7.4, 1);
  EXPECT_EQ(window.tip(), u"Left indent: 7.5 (3 text heights)");
}

TEST(GadgetMouse, a_drag_of_an_indent_takes_the_stop_of_the_drag_before_along) {
  mouse_at_work hand;
  hand.begin();
  hand.drag({10, 1.6}, {15, 1.6});
  hand.drag({0.1, 1}, {7.4, 1});
  EXPECT_EQ(hand.session->editable().text().format.left, 3);
  EXPECT_EQ(hand.tabs(), at{3}) << "a press on an indent deliberately leaves the drag of a stop as it is";
}

TEST(GadgetMouse, a_drag_over_text_tells_nothing) {
  mouse_at_work hand;
  hand.begin();
  hand.press(3, -1.5);
  hand.move(5, -1.5);
  EXPECT_FALSE(hand.session->editable().selections()[0].empty());
  EXPECT_EQ(hand.application.window().tip(), u"");
}

TEST(GadgetMouse, a_key_between_press_and_release_ends_the_drag_and_leaves_what_it_did) {
  mouse_at_work hand;
  hand.begin();
  hand.press(41, 1.6);
  hand.move(25, 1.6);
  hand.type(u"x");
  EXPECT_EQ(hand.application.window().tip(), u"");
  EXPECT_FALSE(hand.application.window().isCaptured());
  hand.move(15, 1.6);
  EXPECT_EQ(hand.columns().width, 25);
  hand.release(15, 1.6);
  EXPECT_EQ(hand.columns().width, 25);
}

TEST(GadgetMouse, a_menu_between_press_and_release_ends_the_drag_with_its_guide) {
  mouse_at_work hand;
  hand.begin();
  hand.press(10, 1.6);
  EXPECT_TRUE(hand.session->gadgets().root().guide);
  hand.event(WM_RBUTTONUP, 5, -1);
  EXPECT_FALSE(hand.session->gadgets().root().guide);
  hand.move(20.2, 1.6);
  EXPECT_EQ(hand.tabs(), at{4});
}

TEST(GadgetMouse, a_menu_in_a_drag_opens_over_a_view_without_the_tip) {
  mouse_at_work hand;
  hand.begin();
  hand.press(41, 1.6);
  hand.move(30, 1.6);
  EXPECT_FALSE(hand.application.window().tip().empty());
  hand.event(WM_RBUTTONUP, 30, 1.6);
  EXPECT_FALSE(hand.application.window().lastMenu().empty());
  EXPECT_EQ(hand.application.window().tipAtLastMenu(), u"");
}

TEST(GadgetMouse, a_key_in_the_drag_of_a_long_text_draws_its_letters_again) {
  mouse_at_work hand;
  hand.text->setContents(OdString(std::u16string(5000, u'a')));
  hand.begin();
  hand.press(41, 1.6);
  hand.move(30, 1.6);
  EXPECT_TRUE(hand.session->editable().isDraft());
  hand.send({.number = WM_KEYDOWN, .code = VK_LEFT});
  EXPECT_FALSE(hand.session->editable().isDraft());
}

TEST(GadgetMouse, a_single_line_session_has_no_gadgets) {
  mouse_at_work hand;
  hand.session.emplace(hand.application.document());
  hand.session->beginPlain(/*single_line=*/true, /*had_text=*/false);
  EXPECT_FALSE(hand.session->gadgets().is_open());
}

TEST(GadgetMouse, whatever_the_pointer_does_no_length_is_negative_and_undo_takes_all_of_it_back) {
  mouse_at_work hand;
  hand.text->setContents(u"Hall and stairs\\Pup to the roof");
  hand.begin();
  const std::string before = hand.session->editable().contentsText().toUtf8();
  std::mt19937 random(7);
  std::uniform_real_distribution<double> x(-5, 50), y(-12, 6);
  const unsigned events[] = {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_MOUSEMOVE, WM_MOUSEMOVE, WM_LBUTTONUP};
  for (int i = 0; i < 2000; ++i) {
    hand.event(events[i % 5], x(random), y(random));
    EXPECT_GE(hand.columns().width, 2.5);
    EXPECT_GE(hand.columns().gutter, 0);
    for (const double height : hand.columns().heights) EXPECT_GE(height, 0);
  }
  EXPECT_FALSE(hand.session->undo().is_empty());
  while (!hand.session->undo().is_empty()) hand.session->undoStep();
  EXPECT_EQ(hand.columns().width, 40);
  EXPECT_EQ(hand.session->editable().contentsText().toUtf8(), before);
}

TEST(GadgetMouse, a_press_meets_the_handles_at_the_size_that_the_view_shows_them) {
  mouse_at_work hand;
  hand.begin();
  hand.application.document().view().gsView().setView({30, 15, 1}, {30, 15, 0}, {0, 1, 0}, 160, 120);
  hand.drag({43, 3.2}, {25, 3.2});
  EXPECT_EQ(hand.columns().width, 25) << "the width sizer is twice as large now";
}
