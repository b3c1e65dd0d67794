#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/edit/edit_text.h"
#include "commands/edit/text_edit_command.h"
#include "host/key_code.h"
#include "od/db/OdDbAttributeDefinition.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "tests/commands/command_run.h"

namespace {

using testing::Contains;

constexpr HostHeldKeys::Keys kCtrl{.ctrl = true};

struct TextEdit : testing::Test {
  command_run run;
  WindowlessInput& input = run.application.input();
  OdDbObjectId line = run.addLineOfText(u"one", {10, 20, 0})->objectId();
  OdDbObjectId block = run.addText(u"two", {10, 60, 0})->objectId();

  OdString text_of_line() const { return odCast<OdDbText>(line.openObject())->textString(); }
  OdString text_of_block() const { return odCast<OdDbMText>(block.openObject())->contents(); }
  void press_line() { input.click({11, 21, 0}); }
  void press_block() { input.click({10.5, 59, 0}); }
  void write(std::u16string_view letters) {
    run.type(letters);
    run.key(VK_RETURN, kCtrl);
  }
};

}  // namespace

TEST_F(TextEdit, edits_each_picked_text_by_the_session_of_its_kind_one_by_one) {
  press_line();
  write(u"uno");
  press_block();
  write(u"x");
  press_line();
  write(u"eins");
  input.line(u"");
  EXPECT_EQ(run.run<CTextEditCmd>(), kCommandDone);
  EXPECT_EQ(text_of_line(), OdString(u"eins"));
  EXPECT_NE(text_of_block(), OdString(u"two"));
}

TEST_F(TextEdit, ends_at_the_selection_with_the_answer_of_that_prompt) {
  input.cancel();
  EXPECT_EQ(run.run<CTextEditCmd>(), kCommandCancelled);
  input.line(u"");
  EXPECT_EQ(run.run<CTextEditCmd>(), kCommandDone);
}

TEST_F(TextEdit, begins_with_what_was_selected_before) {
  run.select(line);
  write(u"uno");
  input.cancel();
  run.run<CTextEditCmd>();
  EXPECT_EQ(text_of_line(), OdString(u"uno"));
}

TEST_F(TextEdit, a_locked_object_gives_the_message_and_the_prompt_again) {
  run.lockLayer();
  press_line();
  input.line(u"");
  EXPECT_EQ(run.run<CTextEditCmd>(), kCommandDone);
  EXPECT_THAT(run.application.log().lines(), Contains(u"Layer locked"));
  EXPECT_EQ(text_of_line(), OdString(u"one"));
  EXPECT_TRUE(input.isEmpty());
}

TEST_F(TextEdit, any_other_entity_is_told_and_asked_again) {
  run.addLine({0, 100, 0}, {100, 100, 0});
  input.click({50, 100, 0});
  press_line();
  write(u"uno");
  input.line(u"");
  run.run<CTextEditCmd>();
  EXPECT_THAT(run.application.log().lines(), Contains(u"err: selected entity is not an Text"));
  EXPECT_EQ(text_of_line(), OdString(u"uno"));
}

TEST_F(TextEdit, what_was_selected_and_is_no_more_is_told_and_asked_again) {
  run.select(line);
  line.openObject(OdDb::kForWrite)->erase();
  input.line(u"");
  EXPECT_EQ(run.run<CTextEditCmd>(), kCommandDone);
  EXPECT_THAT(run.application.log().lines(), Contains(u"err: invalid iterator"));
}

TEST_F(TextEdit, escape_leaves_the_text_as_it_was_without_a_question) {
  const std::string before = run.database->writeBytes();
  press_line();
  run.type(u"uno");
  run.key(VK_ESCAPE);
  input.line(u"");
  run.run<CTextEditCmd>();
  EXPECT_EQ(run.database->writeBytes(), before);
  EXPECT_TRUE(run.application.events().shown().empty());
}

TEST_F(TextEdit, an_attribute_definition_is_left_alone_without_the_library_and_the_prompt_comes_again) {
  auto definition = odNew<OdDbAttributeDefinition>();
  definition->setDatabaseDefaults(run.database.get());
  definition->setTag(u"TAG");
  definition->setHeight(5);
  definition->setPosition({200, 200, 0});
  odCast<OdDbBlockTableRecord>(run.database->getModelSpaceId().openObject(OdDb::kForWrite))
      ->appendOdDbEntity(definition.get());
  definition.release();
  const std::string before = run.database->writeBytes();
  input.click({202, 202, 0});
  input.line(u"");
  EXPECT_EQ(run.run<CTextEditCmd>(), kCommandDone);
  EXPECT_EQ(run.database->writeBytes(), before);
  EXPECT_TRUE(input.isEmpty());
}

TEST_F(TextEdit, one_text_alone_is_edited_by_the_command_of_a_double_click) {
  run.select(line);
  write(u"uno");
  EXPECT_EQ(run.run<COneTextEditCmd>(), kCommandDone);
  EXPECT_EQ(text_of_line(), OdString(u"uno"));
}

TEST_F(TextEdit, the_export_gives_the_answer_of_its_prompt_and_leaves_the_text_open_for_reading) {
  const auto text = odCast<OdDbText>(line.openObject());
  write(u"uno");
  EXPECT_EQ(editText(text, run.application.document()), kAnswerValue);
  EXPECT_FALSE(text->isWriteEnabled());
  run.key(VK_ESCAPE);
  EXPECT_EQ(editText(text, run.application.document()), kAnswerCancel);
  EXPECT_EQ(text->textString(), OdString(u"uno"));
}

TEST_F(TextEdit, a_right_justified_text_keeps_its_point_when_it_is_edited) {
  {
    const auto text = odCast<OdDbText>(line.openObject(OdDb::kForWrite));
    text->setHorizontalMode(OdDb::kTextRight);
    text->setAlignmentPoint({50, 20, 0});
    text->adjustAlignment();
  }
  input.click({49, 21, 0});
  write(u"much longer");
  input.line(u"");
  run.run<CTextEditCmd>();
  const auto text = odCast<OdDbText>(line.openObject());
  EXPECT_EQ(text->alignmentPoint(), (OdGePoint3d{50, 20, 0}));
  EXPECT_LT(text->position().x, 40);
}
