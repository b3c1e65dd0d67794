#include <gtest/gtest.h>

#include "commands/justify/justify_text_command.h"
#include "tests/commands/command_run.h"

namespace {

/// A text at 10,20, selected by a press in its box.
struct JustifyText : testing::Test {
  command_run run;
  OdDbObjectId id = run.addLineOfText(u"HH", {10, 20, 0})->objectId();

  JustifyText() { run.application.input().click({11, 21, 0}); }
  void answer(std::u16string_view keyword) {
    run.application.input().line(u"");
    run.application.input().line(keyword);
  }
  int justify() { return run.run<CJustifyTextCmd>(); }
  OdDbTextPtr text() const { return odCast<OdDbText>(id.openObject()); }
};

}  // namespace

TEST_F(JustifyText, gives_a_text_the_justification_of_the_keyword) {
  answer(u"mc");
  EXPECT_EQ(justify(), kCommandDone);
  EXPECT_EQ(text()->horizontalMode(), OdDb::kTextCenter);
  EXPECT_EQ(text()->verticalMode(), OdDb::kTextVertMid);
  EXPECT_NEAR(text()->position().distanceTo({10, 20, 0}), 0, 1e-9);
  EXPECT_EQ(run.said(),
            u"Select justify mode [Left/Align/Fit/Center/Middle/Right/TL/TC/TR/ML/MC/MR/BL/BC/BR]:");
}

TEST_F(JustifyText, takes_the_names_of_every_language_behind_an_underscore) {
  answer(u"_Right");
  justify();
  EXPECT_EQ(text()->horizontalMode(), OdDb::kTextRight);
}

TEST_F(JustifyText, gives_a_multi_line_text_the_attachment_of_the_keyword) {
  const auto block = run.addText(u"Hall", {100, 20, 0})->objectId();
  run.application.input().click({101, 19, 0});
  answer(u"BR");
  justify();
  EXPECT_EQ(odCast<OdDbMText>(block.openObject())->attachment(), OdDb::kBottomRight);
  EXPECT_EQ(text()->verticalMode(), OdDb::kTextBottom);
}

TEST_F(JustifyText, without_a_keyword_changes_nothing) {
  const std::string before = run.database->writeBytes();
  answer(u"");
  EXPECT_EQ(justify(), kCommandDone);
  EXPECT_EQ(run.database->writeBytes(), before);
}

TEST_F(JustifyText, that_is_cancelled_changes_nothing) {
  const std::string before = run.database->writeBytes();
  run.application.input().cancel();
  EXPECT_EQ(justify(), kCommandCancelled);
  EXPECT_EQ(run.database->writeBytes(), before);
}

TEST(JustifyTextSelection, of_lines_alone_is_asked_for_again_without_any_message) {
  command_run run;
  run.addLine({0, 0, 0}, {100, 0, 0});
  run.application.input().click({50, 0, 0});
  run.application.input().line(u"");
  run.application.input().cancel();
  EXPECT_EQ(run.run<CJustifyTextCmd>(), kCommandCancelled);
  for (const std::u16string& line : run.application.log().lines())
    EXPECT_TRUE(line.empty() || line.starts_with(u"Select Text object"));
}

TEST_F(JustifyText, leaves_out_what_lies_on_a_locked_layer_and_asks_again) {
  run.lockLayer();
  const std::string before = run.database->writeBytes();
  run.application.input().line(u"");
  run.application.input().cancel();
  EXPECT_EQ(justify(), kCommandCancelled);
  EXPECT_EQ(run.database->writeBytes(), before);
}

TEST(JustifyTextSelection, that_stays_empty_ends_the_command) {
  command_run run;
  run.application.input().line(u"");
  EXPECT_EQ(run.run<CJustifyTextCmd>(), kCommandDone);
}
