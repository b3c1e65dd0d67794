#include <gtest/gtest.h>

#include "commands/multi_line/mtext_edit.h"
#include "host/key_code.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbLine.h"
#include "tests/commands/command_run.h"

namespace {

constexpr HostHeldKeys::Keys kCtrl{.ctrl = true};

OdDbObjectId text_in(command_run& run, const OdString& contents = u"Hall") {
  return run.addText(contents, {10, 20, 0})->objectId();
}

OdString contents_of(const OdDbObjectId& id) { return odCast<OdDbMText>(id.openObject())->contents(); }

}  // namespace

TEST(MTextEdit, edits_the_selected_text_in_place) {
  command_run run;
  const auto id = text_in(run);
  run.select(id);
  run.type(u"My ");
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(contents_of(id), OdString(u"My Hall"));
}

TEST(MTextEdit, asks_for_a_text_where_none_is_selected) {
  command_run run;
  const auto id = text_in(run);
  run.application.input().click({10.3, 18.5, 0});
  run.type(u"x");
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(contents_of(id), OdString(u"xHall"));
}

TEST(MTextEdit, the_caret_begins_where_the_text_was_pressed) {
  for (const bool selected_before : {false, true}) {
    command_run run;
    const auto id = text_in(run);
    const OdGePoint3d behind_all{10 + 0.99 * odCast<OdDbMText>(id.openObject())->actualWidth(), 18.5, 0};
    if (selected_before)
      run.application.document().pickFirst().add(id, behind_all);
    else
      run.application.input().click(behind_all);
    run.type(u"x");
    run.key(VK_RETURN, kCtrl);
    EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
    EXPECT_EQ(contents_of(id), OdString(u"Hallx"));
  }
}

TEST(MTextEdit, cancel_at_the_selection_has_status_1) {
  command_run run;
  run.application.input().cancel();
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandCancelled);
}

TEST(MTextEdit, nothing_selected_is_refused) {
  command_run run;
  run.application.input().line(u"");
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(run.said(), u"No entities selected");
}

TEST(MTextEdit, a_locked_layer_stops_it_before_the_session_opens) {
  command_run run;
  const auto id = text_in(run);
  const auto layer = odCast<OdDbEntity>(id.openObject())->layerId();
  odCast<OdDbLayerTableRecord>(layer.openObject(OdDb::kForWrite))->setIsLocked(true);
  run.select(id);
  run.type(u"x");
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(run.said(), u"Layer locked");
  EXPECT_EQ(contents_of(id), OdString(u"Hall"));
  EXPECT_FALSE(run.application.input().isEmpty());
}

TEST(MTextEdit, an_entity_of_another_kind_is_refused) {
  command_run run;
  auto line = odNew<OdDbLine>();
  line->setDatabaseDefaults(run.database.get());
  const auto space =
      odCast<OdDbBlockTableRecord>(run.database->getModelSpaceId().openObject(OdDb::kForWrite));
  run.select(space->appendOdDbEntity(line.get()));
  line.release();
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(run.said(), u"Selected entity is not an MText");
}

TEST(MTextEdit, an_error_of_the_drawing_library_is_told_at_the_prompt) {
  command_run run;
  const auto id = text_in(run);
  const auto open = id.openObject(OdDb::kForWrite);
  run.select(id);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(run.application.document().prompt().refusals(), 1);
}

TEST(Session, esc_on_a_session_in_which_nothing_was_changed_ends_it_with_no_question) {
  command_run run;
  run.select(text_in(run));
  run.key(VK_RIGHT);
  run.key(VK_END, {.shift = true});
  run.key(VK_ESCAPE);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandCancelled);
  EXPECT_TRUE(run.application.events().shown().empty());
}

TEST(Session, esc_with_changes_asks_and_yes_saves) {
  command_run run;
  const auto id = text_in(run);
  run.select(id);
  run.type(u"x");
  run.key(VK_ESCAPE);
  run.application.events().answer(kBoxYes);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(run.application.events().shown().at(0), u"Do you want to save your changes?");
  EXPECT_EQ(contents_of(id), OdString(u"xHall"));
}

TEST(Session, esc_with_changes_asks_and_no_discards) {
  command_run run;
  const auto id = text_in(run);
  run.select(id);
  run.type(u"x");
  run.key(VK_ESCAPE);
  run.application.events().answer(kBoxNo);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandCancelled);
  EXPECT_EQ(contents_of(id), OdString(u"Hall"));
}

TEST(Session, answering_the_cancel_choice_returns_to_editing_with_text_selection_and_undo_intact) {
  command_run run;
  const auto id = text_in(run);
  run.select(id);
  run.type(u"xy");
  run.key(VK_ESCAPE);
  run.application.events().answer(kBoxCancel);
  run.type(u"z");
  run.key('Z', kCtrl);
  run.type(u"w");
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(contents_of(id), OdString(u"wHall"));
}

TEST(Session, behind_the_cancel_choice_the_selected_text_is_still_selected) {
  command_run run;
  const auto id = text_in(run);
  run.select(id);
  run.type(u"xy");
  run.key(VK_END);
  run.key(VK_LEFT, {.shift = true});
  run.key(VK_LEFT, {.shift = true});
  run.key(VK_ESCAPE);
  run.application.events().answer(kBoxCancel);
  run.type(u"z");
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(contents_of(id), OdString(u"xyHaz"));
}

TEST(Session, behind_the_cancel_choice_what_was_undone_can_still_be_done_again) {
  command_run run;
  const auto id = text_in(run);
  run.select(id);
  run.type(u"x");
  run.key(VK_END);
  run.type(u"y");
  run.key('Z', kCtrl);
  run.key(VK_ESCAPE);
  run.application.events().answer(kBoxCancel);
  run.key('Y', kCtrl);
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(contents_of(id), OdString(u"xHally"));
}

TEST(Session, the_end_of_the_input_discards) {
  command_run run;
  const auto id = text_in(run);
  run.select(id);
  run.type(u"x");
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandCancelled);
  EXPECT_EQ(contents_of(id), OdString(u"Hall"));
}

TEST(Session, an_accepted_unchanged_text_leaves_the_drawing_as_it_was) {
  command_run run;
  run.select(text_in(run, u"{\\C1;{a}}"));
  const std::string before = run.database->writeBytes();
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTextEditCmd>(), kCommandDone);
  EXPECT_EQ(run.database->writeBytes(), before);
}
