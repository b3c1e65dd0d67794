#include "host/command_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "host/command_factory.h"
#include "host/windowless/application.h"

namespace {

using testing::Contains;

class Acts : public CCmdProcess {
 public:
  explicit Acts(std::function<int()> action) : m_action(std::move(action)) {}
  int run() override { return setStatus(m_action()); }

 private:
  std::function<int()> m_action;
};

OdSmartPtr<ICmdProcess> command(std::function<int()> action) {
  return OdSmartPtr<ICmdProcess>(new Acts(std::move(action)), kOdRxObjAttach);
}

class CommandLoop : public testing::Test {
 protected:
  void define(const char16_t* name, std::function<int()> action, unsigned flags = kCommandPlain) {
    application.commandFactory().registerCommand(
        name, [action] { return command(action); }, u"TEST", flags);
  }

  WindowlessApplication application{OdDbDatabase::createEmpty()};
  WindowlessInput& input = application.input();
  HostPromptLoop& prompt = application.document().prompt();
  HostCommandLoop loop{application, application.document()};
  int runs = 0;
};

TEST_F(CommandLoop, typed_names_run_in_their_order_until_the_input_ends) {
  std::string order;
  define(u"TestFirst", [&] { return order += '1', kCommandDone; });
  define(u"TestSecond", [&] { return order += '2', kCommandDone; });
  input.line(u"testfirst");
  input.line(u" TestSecond ");
  loop.runUntilEnd();
  EXPECT_EQ(order, "12");
  EXPECT_EQ(prompt.unanswered(), 0);
}

TEST_F(CommandLoop, an_empty_line_runs_the_last_command_again) {
  define(u"TestAgain", [&] { return ++runs, kCommandDone; });
  for (const char16_t* line : {u"", u"TestAgain", u"", u""}) input.line(line);
  loop.runUntilEnd();
  EXPECT_EQ(runs, 3);
}

TEST_F(CommandLoop, an_unknown_name_is_refused_in_one_sentence) {
  input.line(u"Frobnicate");
  loop.runUntilEnd();
  EXPECT_THAT(application.log().lines(), Contains(u"There is no command of this name: Frobnicate"));
  EXPECT_EQ(prompt.refusals(), 1);
}

TEST_F(CommandLoop, an_error_of_the_drawing_library_is_told_and_the_loop_goes_on) {
  define(u"TestFails", []() -> int { throw OdError("The text cannot be opened."); });
  define(u"TestAgain", [&] { return ++runs, kCommandDone; });
  input.line(u"TestFails");
  input.line(u"TestAgain");
  loop.runUntilEnd();
  EXPECT_THAT(application.log().lines(), Contains(u"The text cannot be opened."));
  EXPECT_EQ(prompt.refusals(), 1);
  EXPECT_EQ(runs, 1);
}

TEST_F(CommandLoop, a_cancelled_command_gives_its_status_and_is_no_refusal) {
  define(u"TestCancelled", [] { return kCommandCancelled; });
  EXPECT_EQ(loop.run(u"TestCancelled"), kCommandCancelled);
  EXPECT_EQ(prompt.refusals(), 0);
}

TEST_F(CommandLoop, a_follow_up_runs_behind_its_command) {
  application.commandFactory().registerCommand(u"TestFollowed", [this] {
    auto first = command([this] { return ++runs, kCommandDone; });
    first->setFollowUp(command([this] { return runs += 10, kCommandCancelled; }));
    return first;
  });
  EXPECT_EQ(loop.run(u"TestFollowed"), kCommandCancelled);
  EXPECT_EQ(runs, 11);
}

TEST_F(CommandLoop, a_command_prompts_from_the_same_input) {
  OdGePoint3d point;
  define(u"TestAsks", [&] { return prompt.getPoint({.prompt = u"Where"}, point), kCommandDone; });
  input.line(u"TestAsks");
  input.line(u"5,6");
  loop.runUntilEnd();
  EXPECT_EQ(point, (OdGePoint3d{5, 6, 0}));
}

TEST_F(CommandLoop, it_stops_behind_the_command_that_says_so) {
  define(u"TestStops", [&] { return loop.stop(), kCommandDone; });
  input.line(u"TestStops");
  input.line(u"never read");
  loop.runUntilEnd();
  EXPECT_FALSE(input.isEmpty());
}

TEST_F(CommandLoop, no_filter_of_its_own_is_left_while_a_command_runs) {
  std::size_t filters = 99;
  define(u"TestLooks", [&] { return filters = application.document().messages().size(), kCommandDone; });
  input.line(u"TestLooks");
  loop.runUntilEnd();
  EXPECT_EQ(filters, 0u);
}

}  // namespace
