#include <gtest/gtest.h>

#include "commands/letter_case/tcase_command.h"
#include "tests/commands/command_run.h"
#include "tests/ui/dialogs/dialog_host.h"
#include "ui/dialogs/CCaseDlg.h"

namespace {

/// Presses on a text at `pressed`, ends the selection, and answers the prompt for the mode.
int change_case(command_run& run, const OdGePoint3d& pressed, std::u16string_view mode) {
  run.application.input().click(pressed);
  run.application.input().line(u"");
  run.application.input().line(mode);
  return run.run<CTCase>();
}

std::u16string string_of(const OdDbObjectId& id) {
  return odCast<OdDbText>(id.openObject())->textString().str();
}

std::u16string contents_of(const OdDbObjectId& id) {
  return odCast<OdDbMText>(id.openObject())->contents().str();
}

}  // namespace

TEST(TCase, changes_single_line_and_multi_line_texts) {
  command_run run;
  const OdDbObjectId line = run.addLineOfText(u"HELLO WORLD. FOO", {10, 20, 0})->objectId();
  const OdDbObjectId block = run.addText(u"{\\C1;HALL} 12", {10, 50, 0})->objectId();
  run.application.input().click({10.5, 48.5, 0});
  EXPECT_EQ(change_case(run, {10.5, 20.5, 0}, u"Sentence"), kCommandDone);
  EXPECT_EQ(string_of(line), u"Hello world. Foo");
  EXPECT_EQ(contents_of(block), u"{\\H1x;\\C1;Hall\\c4294967295; {}12}");
}

TEST(TCase, enter_takes_the_mode_that_was_chosen_last) {
  command_run run;
  const OdDbObjectId first = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
  const OdDbObjectId second = run.addLineOfText(u"stairs", {10, 50, 0})->objectId();
  EXPECT_EQ(change_case(run, {10.5, 20.5, 0}, u"Upper"), kCommandDone);
  EXPECT_EQ(change_case(run, {10.5, 50.5, 0}, u""), kCommandDone);
  EXPECT_EQ(string_of(first), u"HALL");
  EXPECT_EQ(string_of(second), u"STAIRS");
}

TEST(TCase, cancel_keeps_the_mode_and_every_text) {
  command_run run;
  const OdDbObjectId id = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
  EXPECT_EQ(change_case(run, {10.5, 20.5, 0}, u"tOggle"), kCommandDone);
  run.application.input().click({10.5, 20.5, 0});
  run.application.input().line(u"");
  run.application.input().cancel();
  EXPECT_EQ(run.run<CTCase>(), kCommandCancelled);
  EXPECT_EQ(string_of(id), u"hALL");
  EXPECT_EQ(change_case(run, {10.5, 20.5, 0}, u""), kCommandDone);
  EXPECT_EQ(string_of(id), u"Hall");
}

TEST(TCase, the_dialog_is_shown_where_somebody_sees_it) {
  command_run run;
  const OdDbObjectId id = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
  ScriptedDisplay display;
  display.on_case = [](CCaseDlg& dialog) {
    dialog.check(CCaseDlg::kChoices[2]);
    return true;
  };
  run.application.input().click({10.5, 20.5, 0});
  run.application.input().line(u"");
  EXPECT_EQ(run.run<CTCase>(), kCommandDone);
  EXPECT_EQ(string_of(id), u"HALL");
}

TEST(TCase, cancel_in_the_dialog_keeps_the_remembered_mode) {
  command_run run;
  const OdDbObjectId id = run.addLineOfText(u"Hall", {10, 20, 0})->objectId();
  ScriptedDisplay display;
  std::vector<int> offered;
  display.on_case = [&offered](CCaseDlg& dialog) {
    offered.push_back(dialog.mode());
    dialog.check(CCaseDlg::kChoices[(dialog.mode() + 1) % 5]);
    return false;
  };
  for (int i = 0; i < 2; ++i) {
    run.application.input().click({10.5, 20.5, 0});
    run.application.input().line(u"");
    EXPECT_EQ(run.run<CTCase>(), kCommandCancelled);
  }
  EXPECT_EQ(offered[0], offered[1]);
  EXPECT_EQ(string_of(id), u"Hall");
}

TEST(TCase, a_selection_of_lines_only_is_told) {
  command_run run;
  run.addLine({0, 0, 0}, {10, 0, 0});
  EXPECT_EQ(change_case(run, {5, 0, 0}, u"Upper"), kCommandDone);
  EXPECT_EQ(run.said(), u"Selected objects are not texts");
}

TEST(TCase, a_cancelled_selection_has_status_1) {
  command_run run;
  run.application.input().cancel();
  EXPECT_EQ(run.run<CTCase>(), kCommandCancelled);
}
