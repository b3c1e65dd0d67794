#include "ui/controls/CEditEx.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A box whose owner takes all but "no".
struct owned_edit {
  owned_edit() {
    edit.confirm = [this](const std::u16string& text) {
      confirmed.push_back(text);
      return text != u"no";
    };
    edit.shown = [this] { ++times_shown; };
  }

  CEditEx edit;
  std::vector<std::u16string> confirmed;
  int times_shown = 0;
};

}  // namespace

TEST(EditEx, enter_pressed_twice_confirms_twice_and_leaving_afterwards_does_not) {
  owned_edit box;
  box.edit.type(u"7");
  box.edit.enter();
  box.edit.enter();
  EXPECT_THAT(box.confirmed, ElementsAre(u"7", u"7"));
  box.edit.leave();
  EXPECT_EQ(box.confirmed.size(), 2U);
}

TEST(EditEx, leaving_confirms_a_text_that_was_changed) {
  owned_edit box;
  box.edit.type(u"7");
  box.edit.leave();
  box.edit.leave();
  EXPECT_THAT(box.confirmed, ElementsAre(u"7"));
}

TEST(EditEx, a_text_of_another_length_is_another_text) {
  owned_edit box;
  box.edit.show(u"7");
  box.edit.type(u"7.");
  box.edit.leave();
  EXPECT_THAT(box.confirmed, ElementsAre(u"7."));
}

TEST(EditEx, leaving_does_not_confirm_what_the_program_showed) {
  owned_edit box;
  box.edit.show(u"7");
  box.edit.leave();
  EXPECT_THAT(box.confirmed, IsEmpty());
  EXPECT_EQ(box.times_shown, 1);
}

TEST(EditEx, a_refused_text_gives_way_to_the_one_before_and_an_accepted_one_stays) {
  owned_edit box;
  box.edit.show(u"7");
  box.edit.type(u"no");
  box.edit.enter();
  EXPECT_EQ(box.edit.text(), u"7");
  box.edit.type(u"8");
  box.edit.enter();
  EXPECT_EQ(box.edit.text(), u"8");
}

TEST(EditEx, confirming_without_an_owner_is_a_fault) {
  CEditEx edit;
  EXPECT_THROW(edit.enter(), std::bad_function_call);
}
