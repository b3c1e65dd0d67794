#include "desk/window/qt_window.h"

#include <QMenu>
#include <QWidget>

#include "desk/window/qt_text.h"

namespace {

Qt::CursorShape shapeOf(HostCursor cursor) {
  switch (cursor) {
    case IDC_ARROW:
      return Qt::ArrowCursor;
    case IDC_IBEAM:
      return Qt::IBeamCursor;
    case IDC_SIZENWSE:
      return Qt::SizeFDiagCursor;
    case IDC_SIZENESW:
      return Qt::SizeBDiagCursor;
    case IDC_SIZEWE:
      return Qt::SizeHorCursor;
    case IDC_SIZENS:
      return Qt::SizeVerCursor;
  }
  return Qt::ArrowCursor;
}

void addRow(QMenu& menu, const HostMenuItem& item) {
  if (item.command == 0) {
    menu.addSeparator();
    return;
  }
  QAction* row = menu.addAction(toQt(item.text));
  row->setData(item.command);
  row->setEnabled(item.enabled);
  row->setCheckable(item.checked);
  row->setChecked(item.checked);
}

}  // namespace

void QtWindow::setCursor(HostCursor shape) { m_view.setCursor(shapeOf(shape)); }

void QtWindow::takeFocus() { m_view.setFocus(); }

int QtWindow::popupMenu(const std::vector<HostMenuItem>& items, HostPixel at) {
  QMenu menu(&m_view);
  for (const HostMenuItem& item : items) addRow(menu, item);
  const QAction* chosen = menu.exec(m_view.mapToGlobal(QPoint(at.x, at.y)));
  return chosen ? chosen->data().toInt() : 0;
}

void QtWindow::post(unsigned message) { m_post({.number = message}); }
