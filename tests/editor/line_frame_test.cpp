#include "editor/line_frame.h"

#include <gtest/gtest.h>

#include "od/gi/OdGiRecorder.h"
#include "tests/editor/edited_drawing.h"
#include "tests/editor/edited_text.h"

namespace {

/// A single-line session on a text that no entity holds; letters are 1.5 wide, lines 2.5 high.
edited_text lines(std::string_view drawn, std::uint32_t alignment = 1) {
  mtext::convert_info info;
  info.alignment = alignment;
  edited_text text(drawn, info);
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  return text;
}

struct box {
  double left, top, right, bottom;
  friend bool operator==(const box&, const box&) = default;
};

box frame_of(edited_text& text) {
  const micui::frame& frame = text.session().lineFrame().refreshed();
  EXPECT_EQ(frame.name, u"text");
  return {frame.x, frame.y, frame.x + frame.width, frame.y + frame.height};
}

}  // namespace

TEST(LineFrame, reaches_over_the_widest_line_from_the_top_of_the_text_to_the_depth_of_the_lowest) {
  edited_text text = lines("abc↵abcde|");
  const mtext::geom_line& lowest = text.text().text().lines[1];
  EXPECT_EQ(frame_of(text), (box{0, 0, 5 * 1.5, lowest.y - lowest.size.below}));
}

TEST(LineFrame, begins_at_the_smallest_line_start_of_lines_that_stand_left_of_their_point) {
  edited_text text = lines("ab↵abcd|", 3);
  const box frame = frame_of(text);
  EXPECT_DOUBLE_EQ(frame.left, -4 * 1.5);
  EXPECT_DOUBLE_EQ(frame.right, 0);
}

TEST(LineFrame, follows_what_is_typed) {
  edited_text text = lines("a|");
  text.keys("b c");
  EXPECT_DOUBLE_EQ(frame_of(text).right, 3 * 1.5);
}

TEST(LineFrame, of_a_text_without_letters_is_its_origin_alone) {
  edited_text text = lines("|");
  EXPECT_EQ(frame_of(text), (box{0, 0, 0, 0}));
}

TEST(LineFrame, takes_a_press_within_and_lets_one_beside_end_the_session) {
  edited_text text = lines("ab|cd");
  text.send({.number = WM_LBUTTONDOWN, .point = {5.9, -1, 0}});
  text.send({.number = WM_LBUTTONUP, .point = {5.9, -1, 0}});
  EXPECT_EQ(text.drawn(), "abcd|");
  EXPECT_EQ(text.ended(), "");
  text.send({.number = WM_LBUTTONDOWN, .point = {6.1, -1, 0}});
  EXPECT_EQ(text.ended(), "accept");
  EXPECT_EQ(text.session().exitPoint(), (OdGePoint3d{6.1, -1, 0}));
}

TEST(LineFrame, takes_a_double_click_and_shows_the_cursor_of_text) {
  edited_text text = lines("ab cd|");
  text.send({.number = WM_LBUTTONDBLCLK, .point = {1, -1, 0}});
  EXPECT_EQ(text.drawn(), "[ab] cd");
  text.send({.number = WM_SETCURSOR, .point = {1, -1, 0}});
  EXPECT_EQ(text.application().window().cursor(), IDC_IBEAM);
  text.send({.number = WM_SETCURSOR, .point = {30, -1, 0}});
  EXPECT_EQ(text.application().window().cursor(), IDC_ARROW);
}

TEST(LineFrame, is_filled_corner_by_corner_and_draws_no_outline) {
  edited_text text = lines("abcd|");
  const box frame = frame_of(text);
  const auto drawn_by = [&](gadget_draw& layer) {
    OdGiRecorder recorder;
    recorder.record(layer, OdGiDefaultContext(), &text.application().document().view().gsView());
    return recorder.primitives();
  };
  const auto filled = drawn_by(text.session().layers().text());
  ASSERT_FALSE(filled.empty());
  const OdGePoint3d corners[] = {{frame.left, frame.bottom, 0},
                                 {frame.right, frame.bottom, 0},
                                 {frame.right, frame.top, 0},
                                 {frame.left, frame.top, 0}};
  EXPECT_EQ(filled[0].kind, OdGiPrimitive::kPolygon);
  EXPECT_TRUE(std::equal(filled[0].contours[0].begin(), filled[0].contours[0].end(), std::begin(corners)));
  EXPECT_TRUE(drawn_by(text.session().layers().gadgets()).empty());
}

TEST(LineFrame, stands_around_the_letters_of_a_turned_entity) {
  edited_drawing drawing;
  OdDbTextPtr line = odNew<OdDbText>();
  line->setDatabaseDefaults(drawing.database.get());
  line->setTextString(u"Door");
  line->setHeight(2.0);
  line->setPosition({10, 20, 0});
  line->setRotation(0.3);
  drawing.session.emplace(drawing.application.document());
  drawing.session->beginTextEdit(line);
  const micui::extents frame = drawing.session->lineFrame().refreshed().parent_extents();
  const OdGePoint3d base = drawing.session->editable().frame().world_to_text() * OdGePoint3d{10, 20, 0};
  EXPECT_NEAR(base.x, frame.min_x, 0.3);
  EXPECT_GT(base.y, frame.min_y - 1e-9);
  EXPECT_LT(base.y, frame.max_y - 1.9);
}
