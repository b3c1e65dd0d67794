#include <gtest/gtest.h>

#include "host/command_factory.h"
#include "host/command_loop.h"
#include "host/windowless/application.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbLine.h"

namespace {

/// A prompt that asks nobody for entities.
class AnsweredSelection : public testing::Test {
 protected:
  AnsweredSelection() {
    answer.add(line());
    answer.add(line());
    prompt.answerSelections([this] { return answer; });
  }

  OdDbObjectId line() {
    OdDbDatabase& database = application.document().database();
    const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject(OdDb::kForWrite));
    return space->appendOdDbEntity(odNew<OdDbLine>().get());
  }

  WindowlessApplication application{OdDbDatabase::createEmpty()};
  HostPromptLoop& prompt = application.document().prompt();
  HostSelectionSet answer, picked;
};

TEST_F(AnsweredSelection, gives_all_entities_without_any_input) {
  EXPECT_EQ(prompt.select(u"Select", kSelectMany, picked), kAnswerValue);
  EXPECT_EQ(picked.ids(), answer.ids());
}

TEST_F(AnsweredSelection, gives_the_first_entity_where_one_is_asked_for) {
  EXPECT_EQ(prompt.select(u"Select", kSelectOne, picked), kAnswerValue);
  EXPECT_EQ(picked.ids(), std::vector{answer.ids().front()});
}

TEST_F(AnsweredSelection, without_entities_cancels_the_command_and_leaves_nothing_unanswered) {
  answer.clear();
  EXPECT_EQ(prompt.select(u"Select", kSelectMany, picked), kAnswerCancel);
  EXPECT_EQ(prompt.unanswered(), 0);
}

TEST_F(AnsweredSelection, comes_once_a_command_so_that_one_that_asks_again_reads_the_input) {
  int asked = 0;
  application.commandFactory().registerCommand(u"AskOnAndOn", [&]() -> OdSmartPtr<ICmdProcess> {
    for (HostSelectionSet set; prompt.select(u"Select", kSelectMany, set) == kAnswerValue;) ++asked;
    return nullptr;
  });
  for (const char16_t* typed : {u"AskOnAndOn", u"", u"AskOnAndOn", u""}) application.input().line(typed);
  HostCommandLoop(application, application.document()).runUntilEnd();
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(prompt.unanswered(), 0);
}

}  // namespace
