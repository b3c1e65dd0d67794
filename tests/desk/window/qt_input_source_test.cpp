#include "desk/window/qt_input_source.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

/// What was pushed, as the numbers of the messages that a prompt reads.
struct Waiting {
  void move(unsigned number, int x) { source.pushMove({.number = number, .pixel = {x, 0}}); }
  std::vector<std::pair<unsigned, int>> read() {
    std::vector<std::pair<unsigned, int>> found;
    while (source.hasInputs()) {
      const HostInput input = source.next();
      const auto& message = std::get<HostWindowMessage>(input);
      found.emplace_back(message.number, message.pixel.x);
    }
    return found;
  }

  HostHeldKeys keys;
  QtInputSource source{keys};
};

using Messages = std::vector<std::pair<unsigned, int>>;

}  // namespace

TEST(QtInputSource, a_move_and_its_cursor_replace_those_that_nobody_has_read) {
  Waiting waiting;
  for (int x = 0; x < 3; ++x) {
    waiting.move(WM_SETCURSOR, x);
    waiting.move(WM_MOUSEMOVE, x);
  }
  EXPECT_EQ(waiting.read(), (Messages{{WM_SETCURSOR, 2}, {WM_MOUSEMOVE, 2}}));
}

TEST(QtInputSource, a_move_without_a_cursor_replaces_the_move_before) {
  Waiting waiting;
  for (int x = 0; x < 3; ++x) waiting.move(WM_MOUSEMOVE, x);
  EXPECT_EQ(waiting.read(), (Messages{{WM_MOUSEMOVE, 2}}));
}

TEST(QtInputSource, a_press_between_two_moves_keeps_the_first) {
  Waiting waiting;
  waiting.move(WM_MOUSEMOVE, 0);
  waiting.source.push(HostWindowMessage{.number = WM_LBUTTONDOWN, .pixel = {0, 0}});
  waiting.move(WM_MOUSEMOVE, 1);
  EXPECT_EQ(waiting.read(), (Messages{{WM_MOUSEMOVE, 0}, {WM_LBUTTONDOWN, 0}, {WM_MOUSEMOVE, 1}}));
}
