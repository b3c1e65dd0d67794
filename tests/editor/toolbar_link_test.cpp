#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/editor/edited_text.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A text whose session tells a toolbar what goes on; only the wparams are kept.
struct watched_text : edited_text {
  explicit watched_text(std::string_view drawn) : edited_text(drawn) {
    session().setToolbar([this](unsigned message, unsigned wparam) {
      EXPECT_EQ(message, 7526U);
      told.push_back(wparam);
    });
  }

  /// What the toolbar is told while keys are typed.
  std::vector<unsigned> told_by(std::string_view list) {
    told.clear();
    keys(list);
    return told;
  }

  std::vector<unsigned> told;
};

}  // namespace

TEST(ToolbarLink, every_push_of_a_step_sends_a_0_even_if_the_run_goes_on) {
  watched_text text("a|");
  EXPECT_THAT(text.told_by("x"), ElementsAre(0U));
  EXPECT_THAT(text.told_by("y"), ElementsAre(0U));
  EXPECT_THAT(text.told_by("Backspace"), ElementsAre(0U));
  EXPECT_EQ(text.session().undo().undo_count(), 2U);
}

TEST(ToolbarLink, a_space_pushes_two_steps_and_sends_two) {
  EXPECT_THAT(watched_text("a|").told_by("Space"), ElementsAre(0U, 0U));
}

TEST(ToolbarLink, every_caret_key_sends_a_0) {
  for (const char* key : {"Left", "Right", "Up", "Down", "Home", "End", "PageUp", "PageDown"})
    EXPECT_THAT(watched_text("a|b").told_by(key), ElementsAre(0U)) << key;
}

TEST(ToolbarLink, undo_and_redo_send_a_1) {
  watched_text text("a|");
  text.keys("x");
  EXPECT_THAT(text.told_by("Ctrl+z"), ElementsAre(1U));
  EXPECT_THAT(text.told_by("Ctrl+y"), ElementsAre(1U));
}

TEST(ToolbarLink, ctrl_z_on_an_empty_undo_stack_does_nothing_and_sends_no_message) {
  watched_text text("a|b");
  EXPECT_THAT(text.told_by("Ctrl+z"), IsEmpty());
  EXPECT_THAT(text.told_by("Ctrl+y"), IsEmpty());
  EXPECT_EQ(text.drawn(), "a|b");
}

TEST(ToolbarLink, copying_and_selecting_all_send_nothing) {
  watched_text text("a|b");
  EXPECT_THAT(text.told_by("Ctrl+a Ctrl+c Ctrl+Insert Esc"), IsEmpty());
}

TEST(ToolbarLink, the_formats_of_the_selection_are_those_of_the_restored_text_when_it_is_told) {
  watched_text text("|");
  mtext::format::string_partial red;
  red.color = mtext::format::text_color{.kind = 0, .index = 1};
  text.text().applyFormat(red);
  text.keys("x");
  std::optional<int> seen;
  text.session().setToolbar([&](unsigned, unsigned) {
    const auto& color = text.text().currentFormat().color;
    if (color) seen = color->index;
  });
  text.keys("Ctrl+z Ctrl+y");
  EXPECT_EQ(seen, 1);
}
