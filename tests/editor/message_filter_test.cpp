#include <gtest/gtest.h>

#include "host/key_code.h"
#include "tests/editor/edited_drawing.h"
#include "tests/editor/edited_text.h"

TEST(MessageFilter, no_key_reaches_the_command_line_while_a_session_is_open) {
  edited_text text("ab|");
  HostMessages& messages = text.application().document().messages();
  for (unsigned code = 0; code < 256; ++code)
    for (const unsigned number : {WM_KEYDOWN, WM_CHAR, WM_KEYUP})
      EXPECT_TRUE(messages.offer({.number = number, .code = code})) << number << " " << code;
}

TEST(MessageFilter, the_buttons_are_consumed_and_moves_go_on_to_the_host) {
  edited_text text("ab|");
  HostMessages& messages = text.application().document().messages();
  for (const unsigned number :
       {WM_SETCURSOR, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP})
    EXPECT_TRUE(messages.offer({.number = number})) << number;
  for (const unsigned number : {WM_MOUSEMOVE, WM_MOUSEWHEEL, WM_MBUTTONDOWN, WM_MBUTTONUP})
    EXPECT_FALSE(messages.offer({.number = number})) << number;
}

TEST(MessageFilter, ctrl_enter_accepts_and_esc_cancels) {
  edited_text text("ab|");
  text.keys("Ctrl+Enter");
  EXPECT_EQ(text.ended(), "accept");
  text.keys("Esc");
  EXPECT_EQ(text.ended(), "cancel");
}

TEST(MessageFilter, a_press_outside_the_text_accepts_and_keeps_the_point) {
  edited_text text("ab|", wrapping(40));
  text.send({.number = WM_LBUTTONDOWN, .point = {100, 100, 0}});
  EXPECT_EQ(text.ended(), "accept");
  ASSERT_TRUE(text.session().exitPoint());
  EXPECT_EQ(text.session().exitPoint()->x, 100);
}

TEST(MessageFilter, the_text_reaches_three_tenths_of_a_height_over_its_columns) {
  edited_text text("ab|", wrapping(40));
  text.send({.number = WM_LBUTTONDOWN, .point = {-0.74, 0.74, 0}});
  EXPECT_FALSE(text.session().exitPoint());
  text.send({.number = WM_LBUTTONDOWN, .point = {-0.76, 0, 0}});
  EXPECT_TRUE(text.session().exitPoint());
}

TEST(MessageFilter, a_text_without_letters_can_be_pressed_at_its_first_line) {
  edited_text text("|", wrapping(40));
  text.send({.number = WM_LBUTTONDOWN, .point = {20, -2, 0}});
  EXPECT_FALSE(text.session().exitPoint());
}

TEST(MessageFilter, a_view_along_the_text_plane_makes_clicks_do_nothing) {
  edited_text text("ab|", wrapping(40));
  text.application().document().view().gsView().setView({0, -10, 0}, {0, 0, 0}, {0, 0, 1}, 10, 10);
  text.send({.number = WM_LBUTTONDOWN, .point = {1, 0, -1}});
  text.send({.number = WM_LBUTTONDOWN, .point = {100, 0, 100}});
  EXPECT_EQ(text.drawn(), "ab|");
  EXPECT_EQ(text.ended(), "");
}

TEST(MessageFilter, the_cursor_is_an_i_beam_over_the_text_and_an_arrow_beside_it) {
  edited_text text("ab|", wrapping(40));
  text.send({.number = WM_SETCURSOR, .point = {1, -1, 0}});
  EXPECT_EQ(text.application().window().cursor(), IDC_IBEAM);
  text.send({.number = WM_SETCURSOR, .point = {100, 100, 0}});
  EXPECT_EQ(text.application().window().cursor(), IDC_ARROW);
}

TEST(MessageFilter, a_key_while_the_button_is_down_ends_the_drag_so_that_no_caret_points_beyond_the_text) {
  for (const char* keys : {"Ctrl+Z", "Backspace Backspace Backspace"}) {
    edited_text text("|", wrapping(40));
    text.keys("a b c");
    text.send({.number = WM_LBUTTONDOWN, .point = {39, -1, 0}});
    text.keys(keys);
    text.send({.number = WM_MOUSEMOVE, .point = {0.1, -1, 0}});
    EXPECT_EQ(text.drawn(), "|") << keys;
    text.send({.number = WM_LBUTTONUP});
    text.keys("x");
    EXPECT_EQ(text.drawn(), "x|") << keys;
  }
}

TEST(MessageFilter, a_press_captures_the_mouse_until_its_release) {
  edited_text text("ab|", wrapping(40));
  text.send({.number = WM_LBUTTONDOWN, .point = {1, -1, 0}});
  EXPECT_TRUE(text.application().window().isCaptured());
  text.send({.number = WM_LBUTTONUP});
  EXPECT_FALSE(text.application().window().isCaptured());
}

namespace {

/// A view beside the document's, which nobody paints.
struct unpainted_view : HostView {
  HostViewOverlay& overlay() override { return shown; }
  OdGsView& gsView() override { return camera; }
  double unitsPerPixel() const override { return 1; }

  HostViewOverlay shown;
  OdGsView camera;
};

struct own_view_host : EditHost {
  explicit own_view_host(EditHost& around) : host(around) {}
  OdDbDatabase& database() override { return host.database(); }
  HostMessages& messages() override { return host.messages(); }
  HostView& view() override { return own; }
  HostCommandInput& commandInput() override { return host.commandInput(); }

  EditHost& host;
  unpainted_view own;
};

}  // namespace

TEST(MessageFilter, a_caret_key_leaves_the_text_layer_as_it_is_painted) {
  edited_drawing drawing;
  own_view_host host(drawing.application.document());
  smart_edit session(host);
  session.beginMTextEdit(drawing.text);
  host.own.shown.setPainted();
  drawing.send({.number = WM_KEYDOWN, .code = VK_RIGHT});
  drawing.send({.number = WM_KEYUP, .code = VK_RIGHT});
  EXPECT_TRUE(host.own.shown.isInvalid(session.layers().gadgets()));
  EXPECT_FALSE(host.own.shown.isInvalid(session.layers().text()));
  drawing.type(u"x");
  EXPECT_TRUE(host.own.shown.isInvalid(session.layers().text()));
}
