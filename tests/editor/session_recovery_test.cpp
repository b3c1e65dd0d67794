#include <gtest/gtest.h>

#include <stdexcept>

#include "host/key_code.h"
#include "tests/editor/edited_text.h"
#include "tests/mtext/stub_finder.h"

namespace {

/// Measures anything but one letter.
class finder_without_x : public mtext::stub_finder {
 public:
  mtext::string_metrics measure(const mtext::format::string& format,
                                std::u16string_view text) const override {
    if (text == u"x") throw std::runtime_error("there is no x");
    return stub_finder::measure(format, text);
  }
};

edited_text without_x(std::string_view drawn) {
  edited_text text(drawn);
  text.text().setFinder(std::make_shared<finder_without_x>());
  return text;
}

std::vector<std::u16string> said(edited_text& text) { return text.application().log().lines(); }

}  // namespace

TEST(SessionRecovery, a_key_that_fails_leaves_the_text_as_it_was_before_and_tells_it_in_a_sentence) {
  auto text = without_x("a[bc]d");
  EXPECT_NO_THROW(text.keys("x"));
  EXPECT_EQ(text.drawn(), "a[bc]d");
  EXPECT_TRUE(text.session().undo().is_empty());
  ASSERT_EQ(said(text).size(), 1U);
  EXPECT_EQ(said(text)[0], u"This could not be done, and what was typed before it is kept: there is no x");
}

TEST(SessionRecovery, a_key_that_fails_in_a_run_of_typing_loses_nothing_of_the_run) {
  auto text = without_x("a|");
  EXPECT_EQ(text.keys("b c x d").drawn(), "abcd|");
  EXPECT_EQ(text.ended(), "");
  EXPECT_EQ(text.keys("Ctrl+z").drawn(), "a|");
}

TEST(SessionRecovery, the_session_goes_on_with_every_key) {
  auto text = without_x("ab|");
  text.keys("x Left c Backspace Enter");
  EXPECT_EQ(text.drawn(), "a¶|b");
  text.keys("Ctrl+Enter");
  EXPECT_EQ(text.ended(), "accept");
}

TEST(SessionRecovery, what_was_put_aside_for_the_failed_key_is_not_an_undo_step) {
  auto text = without_x("a|");
  text.keys("b Left x");
  EXPECT_EQ(text.drawn(), "a|b");
  EXPECT_EQ(text.session().undo().undo_count(), 1U);
  EXPECT_EQ(text.keys("Ctrl+z").drawn(), "a|");
}
