#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include "desk/window/window_desk.h"
#include "host/profile.h"
#include "host/turned_text.h"
#include "tests/desk/window/open_main_window.h"

namespace {

QAction* turnEntry() {
  for (QAction* menu : mainWindow()->menuBar()->actions())
    for (QAction* entry : menu->menu()->actions())
      if (entry->text() == "&Turn Edited Text to the Screen") return entry;
  return nullptr;
}

/// Types lines at a new desk until it ends.
void type(HostMemoryProfile& profile, QStringList lines) {
  WindowDesk desk(profile);
  desk.showWindow();
  QTimer::singleShot(0, [&] { emit mainWindow()->commandChosen(lines << "Quit"); });
  desk.run();
}

}  // namespace

TEST(TurnText, the_command_is_remembered_and_an_empty_answer_keeps_what_is) {
  HostMemoryProfile profile;
  type(profile, {"TurnText", "View"});
  EXPECT_FALSE(host::turns_edited_text(profile));
  type(profile, {"TurnText", ""});
  EXPECT_FALSE(host::turns_edited_text(profile));
  type(profile, {"TurnText", "T"});
  EXPECT_TRUE(host::turns_edited_text(profile));
}

TEST(TurnText, the_menu_entry_chooses_it_and_shows_what_the_command_chose) {
  HostMemoryProfile profile;
  WindowDesk desk(profile);
  desk.showWindow();
  bool checked_first = false, checked_then = true;
  QTimer::singleShot(0, [&] { emit mainWindow()->commandChosen({"TurnText", "View"}); });
  QTimer::singleShot(200, [&] {
    checked_first = turnEntry()->isChecked();
    turnEntry()->trigger();
    checked_then = turnEntry()->isChecked();
    emit mainWindow()->commandChosen({"Quit"});
  });
  desk.run();
  EXPECT_FALSE(checked_first);
  EXPECT_TRUE(checked_then);
  EXPECT_TRUE(host::turns_edited_text(profile));
}
