#include "desk/window/qt_window.h"

#include <QActionGroup>
#include <QMenu>
#include <QWidget>

#include "desk/window/qt_text.h"
#include "desk/window/value_tip.h"

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

/// Behind a tab stands what the toolkit shows at the right edge.
QString labelOf(const HostMenuItem& item) {
  return item.hint.empty() ? toQt(item.text) : toQt(item.text) + u'\t' + toQt(item.hint);
}

void addRows(QMenu& menu, const HostMenu& rows);

/// The action that a row becomes; the rows of its sub-menu come along.
QAction* addRow(QMenu& menu, const HostMenuItem& item) {
  if (item.isSeparator()) return menu.addSeparator();
  if (item.rows.empty()) return menu.addAction(labelOf(item));
  QMenu* opened = menu.addMenu(toQt(item.text));
  addRows(*opened, item.rows);
  return opened->menuAction();
}

void addRows(QMenu& menu, const HostMenu& rows) {
  // What belongs to a group of its own is checked by a dot.
  auto* dots = new QActionGroup(&menu);
  for (const HostMenuItem& item : rows) {
    QAction* row = addRow(menu, item);
    row->setData(item.command);
    row->setEnabled(item.enabled);
    row->setCheckable(item.checked);
    row->setChecked(item.checked);
    if (item.radio) dots->addAction(row);
  }
}

}  // namespace

void QtWindow::setCursor(HostCursor shape) { m_view.setCursor(shapeOf(shape)); }

void QtWindow::takeFocus() {
  m_view.activateWindow();
  m_view.setFocus();
}

HostPixel QtWindow::fromScreen(HostPixel screen) const {
  const QPoint at = m_view.mapFromGlobal(QPoint(screen.x, screen.y));
  return {at.x(), at.y()};
}

int QtWindow::popupMenu(const HostMenu& rows, HostPixel at) {
  QMenu menu(&m_view);
  addRows(menu, rows);
  const QAction* chosen = menu.exec(m_view.mapToGlobal(QPoint(at.x, at.y)));
  return chosen ? chosen->data().toInt() : 0;
}

void QtWindow::showTip(std::u16string_view text) {
  if (!m_tip) m_tip = new ValueTip(m_view);
  m_tip->showAt(m_view.mapFromGlobal(QCursor::pos()), toQt(text));
}

void QtWindow::hideTip() {
  if (m_tip) m_tip->hide();
}

void QtWindow::post(unsigned message) { m_post({.number = message}); }
