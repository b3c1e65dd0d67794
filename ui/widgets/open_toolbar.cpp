#include "ui/widgets/open_toolbar.h"

#include <QApplication>
#include <QMainWindow>

#include "editor/smart_edit.h"
#include "od/db/OdDbDatabase.h"
#include "ui/fonts/font_list.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/widgets/toolbar_widget.h"

namespace {

/// The application's own window.
QWidget* mainWindow() {
  for (QWidget* each : QApplication::topLevelWidgets())
    if (qobject_cast<QMainWindow*>(each) && each->isVisible()) return each;
  return nullptr;
}

std::vector<fonts::font_row> fontsFor(const smart_edit& session) {
  const OdDbDatabase* database = session.editable().database();
  return database ? fonts::font_rows(database->fontLibrary()) : std::vector<fonts::font_row>();
}

class FloatingToolbar : public SessionToolbar {
 public:
  explicit FloatingToolbar(smart_edit& session)
      : m_window(mainWindow()), m_bar(session, m_window, fontsFor(session)) {
    m_window.fill(m_bar);
    m_window.show();
  }
  ~FloatingToolbar() override { m_window.empty(); }

 private:
  ToolbarWidget m_window;
  CMTextEdit m_bar;
};

}  // namespace

std::unique_ptr<SessionToolbar> open_toolbar(smart_edit& session) {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance()) || session.isSingleLine()) return nullptr;
  return std::make_unique<FloatingToolbar>(session);
}
