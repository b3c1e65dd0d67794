#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/key_code.h"
#include "host/prompt_loop.h"
#include "host/windowless/application.h"

namespace {

/// The flag word with which an editing session waits.
constexpr unsigned kSessionFlags = kReadOnlyWaits | kReadMayBeEmpty;

/// Takes every key, and types `text` for Ctrl+Enter and Esc as a session does.
class SessionFilter : public HostEdMessageFilter {
 public:
  SessionFilter(HostCommandInput& input, std::u16string_view text) : m_input(input), m_text(text) {}
  bool filterMessage(const HostWindowMessage& message, const OdGePoint3d&) override {
    if (message.number == WM_KEYDOWN && message.code == VK_RETURN) m_input.type(m_text);
    return true;
  }

 private:
  HostCommandInput& m_input;
  std::u16string_view m_text;
};

class ReadInput : public testing::Test {
 protected:
  WindowlessApplication application{OdDbDatabase::createEmpty()};
  WindowlessInput& input = application.input();
  HostPromptLoop& prompt = application.document().prompt();
  std::u16string answer = u"before";
};

TEST_F(ReadInput, a_line_is_read_without_the_blanks_at_its_ends) {
  input.line(u"  two words ");
  EXPECT_EQ(prompt.read_input(u"Enter text", u"", kReadMayBeEmpty, &answer), kAnswerValue);
  EXPECT_EQ(answer, u"two words");
}

TEST_F(ReadInput, blanks_are_kept_where_the_flags_say_so) {
  input.line(u"  two words ");
  prompt.read_input(u"Enter text", u"", kReadWholeLine | kReadKeepBlanks | kReadMayBeEmpty, &answer);
  EXPECT_EQ(answer, u"  two words ");
}

TEST_F(ReadInput, an_empty_line_is_a_value_where_the_flags_say_so_and_refused_elsewhere) {
  input.line(u"");
  EXPECT_EQ(prompt.read_input(u"Enter text", u"", kReadMayBeEmpty, &answer), kAnswerValue);
  EXPECT_EQ(answer, u"");
  input.line(u"");
  input.line(u"x");
  EXPECT_EQ(prompt.read_input(u"Enter text", u"", 0, &answer), kAnswerValue);
  EXPECT_EQ(answer, u"x");
}

TEST_F(ReadInput, the_enter_sign_typed_by_a_filter_ends_the_running_prompt) {
  SessionFilter filter(application.document().commandInput(), u"^M");
  application.document().messages().pushFilter(filter, 2);
  input.key('A');
  input.key(VK_RETURN);
  input.line(u"never read");
  EXPECT_EQ(prompt.read_input(u"Type the text...", u"", kSessionFlags), kAnswerValue);
  EXPECT_FALSE(input.isEmpty());
}

TEST_F(ReadInput, the_cancel_sign_typed_by_a_filter_cancels_the_running_prompt) {
  SessionFilter filter(application.document().commandInput(), u"^C");
  application.document().messages().pushFilter(filter, 2);
  input.key(VK_RETURN);
  EXPECT_EQ(prompt.read_input(u"Type the text...", u"", kSessionFlags), kAnswerCancel);
}

TEST_F(ReadInput, a_line_of_blanks_alone_is_empty_but_where_it_is_told_apart) {
  for (int i = 0; i < 2; ++i) input.line(u"  ");
  EXPECT_EQ(prompt.read_input(u"Replace with", u"", kReadKeepBlanks | kReadMayBeEmpty, &answer),
            kAnswerValue);
  EXPECT_EQ(answer, u"");
  EXPECT_EQ(prompt.read_input(u"Replace with", u"", kReadKeepBlanks | kReadBlanksAlone, &answer),
            kAnswerValue);
  EXPECT_EQ(answer, u"  ");
}

TEST_F(ReadInput, a_wait_refuses_typed_text_and_goes_on) {
  input.line(u"Save");
  input.line(u"");
  EXPECT_EQ(prompt.read_input(u"Type the text...", u"", kSessionFlags), kAnswerValue);
  EXPECT_THAT(
      application.log().lines(),
      testing::ElementsAre(u"Type the text...", u"Nothing is read here: Enter finishes and Esc cancels.",
                           u"Type the text..."));
}

TEST_F(ReadInput, a_press_in_the_view_means_nothing_to_a_prompt_for_text) {
  input.click({1, 1, 0});
  input.line(u"x");
  EXPECT_EQ(prompt.read_input(u"Enter text", u"", 0, &answer), kAnswerValue);
  EXPECT_EQ(answer, u"x");
}

TEST_F(ReadInput, a_keyword_wins_over_the_text) {
  input.line(u"?");
  EXPECT_EQ(prompt.read_input(u"Type the text style or [?]", u"?", 0, &answer), 0);
  EXPECT_EQ(answer, u"before");
}

}  // namespace
