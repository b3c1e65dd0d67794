#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTimer>
#include <numbers>

#include "desk/window/drawing_view.h"
#include "desk/window/main_window.h"
#include "desk/window/window_desk.h"
#include "editor/smart_edit.h"
#include "host/profile.h"
#include "mtext/entity/mtext_layout.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "ui/resources/strings.h"

namespace {

/// A session in the window on a text "ab", as a command would have it.
struct WindowSession : testing::Test {
  WindowSession() {
    resources::register_strings();
    desk.emplace(profile);
    OdDbDatabase& database = desk->document().database();
    database.setTextLayout(std::make_shared<mtext::mtext_layout>());
    text = odNew<OdDbMText>();
    text->setDatabaseDefaults(&database);
    text->setContents(u"ab");
    text->setTextHeight(20);
    text->setLocation({100, 100, 0});
    odCast<OdDbBlockTableRecord>(database.getModelSpaceId().openObject(OdDb::kForWrite))
        ->appendOdDbEntity(text.get());
    desk->showWindow();
    for (QWidget* each : QApplication::topLevelWidgets())
      if (auto* main = qobject_cast<MainWindow*>(each)) window = main;
  }

  void begin() {
    session.emplace(desk->document());
    session->beginMTextEdit(text);
    session->editable().moveTextEnd(/*shift=*/false);
  }
  DrawingView& view() { return window->view(); }
  void compose(const QString& preedit, const QString& commit = {}) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(&view(), &event);
  }
  void key(int code, Qt::KeyboardModifiers held = {}, const QString& letters = {}) {
    QKeyEvent press(QEvent::KeyPress, code, held, letters), release(QEvent::KeyRelease, code, held, letters);
    QCoreApplication::sendEvent(&view(), &press);
    QCoreApplication::sendEvent(&view(), &release);
  }
  /// Works on what was typed up to here, and gives the text.
  std::u16string typed() {
    key(Qt::Key_Return, Qt::ControlModifier);
    desk->document().prompt().read_input(u"", u"", kReadOnlyWaits | kReadMayBeEmpty);
    return session->editable().contentsText().str();
  }
  /// What an input method hears of the caret, as it asks for it.
  QRect caretBox() {
    QInputMethodQueryEvent question(Qt::ImCursorRectangle);
    QCoreApplication::sendEvent(&view(), &question);
    return question.value(Qt::ImCursorRectangle).toRect();
  }
  std::size_t shown() { return session->editable().displayed().parts.size(); }

  HostMemoryProfile profile;
  std::optional<WindowDesk> desk;
  OdDbMTextPtr text;
  MainWindow* window = nullptr;
  std::optional<smart_edit> session;
};

}  // namespace

TEST_F(WindowSession, shows_what_an_input_method_composes_and_types_what_it_commits) {
  begin();
  compose("kan");
  EXPECT_EQ(shown(), 5U);
  EXPECT_EQ(session->editable().contentsText(), OdString(u"ab"));
  compose("", QString::fromUtf8("漢😀"));
  EXPECT_EQ(shown(), 2U);
  EXPECT_EQ(typed(), u"ab漢😀");
  EXPECT_EQ(session->undo().undo_count(), 1U);
}

TEST_F(WindowSession, esc_takes_back_what_is_composed_and_nothing_else) {
  begin();
  compose("kan");
  key(Qt::Key_Escape);
  EXPECT_EQ(shown(), 2U);
  key(Qt::Key_X, {}, "x");
  EXPECT_EQ(typed(), u"abx");
}

TEST_F(WindowSession, types_what_alt_gr_makes_of_a_key_that_ctrl_would_take) {
  begin();
  key(Qt::Key_V, Qt::ControlModifier | Qt::AltModifier, "@");
  key(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier, QString::fromUtf8("ą"));
  EXPECT_EQ(typed(), u"ab@ą");
}

TEST_F(WindowSession, keeps_the_order_of_keys_and_committed_text) {
  begin();
  key(Qt::Key_X, {}, "x");
  compose("", QString::fromUtf8("é"));
  key(Qt::Key_Y, {}, "y");
  QTimer::singleShot(200, [this] { key(Qt::Key_Return, Qt::ControlModifier); });
  desk->document().prompt().read_input(u"", u"", kReadOnlyWaits | kReadMayBeEmpty);
  EXPECT_EQ(session->editable().contentsText().str(), u"abxéy");
}

TEST_F(WindowSession, tells_the_input_method_where_the_caret_is_seen_in_a_rotated_text_too) {
  for (const double angle : {0.0, 0.1, std::numbers::pi / 2}) {
    text->setRotation(angle);
    begin();
    OdGePoint2d top, bottom;
    session->editable().caretPoints(session->editable().selections()[0], top, bottom);
    const OdGePoint2d seen = view().hostView().gsView().toDevice(session->worldPoint(top));
    const QRect before = caretBox();
    EXPECT_TRUE(view().rect().contains(before));
    EXPECT_TRUE(before.adjusted(-1, -1, 1, 1).contains(QPoint(int(seen.x), int(seen.y))));
    EXPECT_GT(before.height(), 5);
    compose("kan");
    EXPECT_GT(caretBox().center().x(), before.center().x());
    compose("");
    session.reset();
  }
}

TEST_F(WindowSession, without_one_the_input_method_hears_of_no_caret) {
  EXPECT_TRUE(caretBox().isEmpty());
  compose("kan");
  compose("");
}
