#include "host/events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/windowless/application.h"

namespace {

constexpr int kStyle = kBoxButtonsOfLevel;

TEST(Events, a_help_key_between_dollar_signs_is_cut_off) {
  const HostBoxText text = splitBoxText(u"Do you want to save your changes?$IDH_SAVE$");
  EXPECT_EQ(text.shown, u"Do you want to save your changes?");
  EXPECT_EQ(text.help_key, u"IDH_SAVE");
}

TEST(Events, a_text_without_a_key_is_shown_whole) {
  EXPECT_EQ(splitBoxText(u"It costs 5$").shown, u"It costs 5$");
  EXPECT_EQ(splitBoxText(u"It costs 5$").help_key, u"");
}

TEST(Events, questions_take_the_answers_in_their_order) {
  HostAnsweredEvents events;
  events.answer(kBoxCancel);
  events.answer(kBoxYes);
  EXPECT_EQ(events.box(kBoxQuestion, u"First?$KEY$", nullptr, kStyle), 3);
  EXPECT_EQ(events.box(kBoxQuestion, u"Second?", nullptr, kStyle), 1);
  EXPECT_THAT(events.shown(), testing::ElementsAre(u"First?", u"Second?"));
  EXPECT_EQ(events.answersLeft(), 0u);
}

TEST(Events, a_question_without_an_answer_is_cancelled_and_counted) {
  HostAnsweredEvents events;
  EXPECT_EQ(events.box(kBoxQuestion, u"Sure?", nullptr, kStyle), kBoxCancel);
  EXPECT_EQ(events.unanswered(), 1);
}

TEST(Events, an_alert_is_shown_by_the_running_application) {
  WindowlessApplication application(OdDbDatabase::createEmpty());
  hostAlert(u"That is no number.");
  EXPECT_THAT(application.events().shown(), testing::ElementsAre(u"That is no number."));
}

TEST(Events, an_alert_is_no_fault_where_no_application_runs) {
  EXPECT_NO_THROW(hostAlert(u"Nobody sees it."));
}

TEST(Events, an_alert_uses_up_no_answer) {
  HostAnsweredEvents events;
  events.answer(kBoxNo);
  events.box(kBoxAlert, u"That is no number.", nullptr, kStyle);
  EXPECT_EQ(events.answersLeft(), 1u);
}

TEST(Events, the_services_are_those_of_the_running_application) {
  EXPECT_EQ(Get_IEvents(), nullptr);
  EXPECT_EQ(Get_IHelpService(), nullptr);
  WindowlessApplication application(OdDbDatabase::createEmpty());
  EXPECT_EQ(Get_IEvents(), &application.events());
  Get_IHelpService()->show(u"IDH_SAVE");
  EXPECT_THAT(application.help().keys(), testing::ElementsAre(u"IDH_SAVE"));
}

}  // namespace
