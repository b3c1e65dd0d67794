#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <optional>

#include "desk/window/window_desk.h"
#include "host/command.h"
#include "host/command_factory.h"
#include "host/profile.h"
#include "host/prompt.h"
#include "tests/desk/window/open_main_window.h"

namespace {

/// Waits as a session with changes does: asks before it is cancelled.
class AskingCommand : public CCmdProcess {
 public:
  int run() override {
    s_runs = true;
    HostDocument& document = *s_desk->application().activeDocument();
    while (document.prompt().read_input(u"Type", u"", kReadMayBeEmpty) == kAnswerCancel) {
      if (s_desk->application().events().box(kBoxQuestion, u"Save?", nullptr, 7) != kBoxCancel) break;
    }
    s_runs = false;
    return setStatus(kCommandCancelled);
  }

  static inline WindowDesk* s_desk = nullptr;
  static inline bool s_runs = false;
};

/// Answers every question with one button, and counts them.
class Answers {
 public:
  explicit Answers(QMessageBox::StandardButton button) {
    QObject::connect(&m_timer, &QTimer::timeout, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      ++m_count;
      box->button(button)->click();
    });
    m_timer.start(20);
  }
  int count() const { return m_count; }

 private:
  QTimer m_timer;
  int m_count = 0;
};

}  // namespace

TEST(CloseWindow, over_changes_asks_once_and_cancel_stays_where_one_was) {
  HostMemoryProfile profile;
  WindowDesk desk(profile);
  AskingCommand::s_desk = &desk;
  desk.application().commandFactory().registerCommand(
      u"Asking", []() -> OdSmartPtr<ICmdProcess> { return odNew<AskingCommand>(); });
  desk.showWindow();

  std::optional<Answers> cancel(QMessageBox::Cancel), no;
  int asked_for_cancel = 0;
  const auto close_again = [&] {
    asked_for_cancel = cancel->count();
    EXPECT_TRUE(AskingCommand::s_runs);
    EXPECT_TRUE(mainWindow()->isVisible());
    cancel.reset();
    no.emplace(QMessageBox::No);
    mainWindow()->close();
  };
  QTimer until_asked;
  QObject::connect(&until_asked, &QTimer::timeout, [&] {
    if (cancel->count() == 0) return;
    until_asked.stop();
    // A second question would come at once.
    QTimer::singleShot(500, close_again);
  });
  QTimer::singleShot(0, [&] {
    emit mainWindow()->commandChosen({"Asking"});
    QTimer::singleShot(200, [&] { mainWindow()->close(); });
    until_asked.start(20);
  });
  desk.run();
  ASSERT_TRUE(no);
  EXPECT_EQ(asked_for_cancel, 1);
  EXPECT_EQ(no->count(), 1);
  EXPECT_FALSE(AskingCommand::s_runs);
}
