#include "desk/window/mouse_messages.h"

#include <QMouseEvent>

#include "od/gi/OdGsView.h"

unsigned pressNumber(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return WM_LBUTTONDOWN;
  if (button == Qt::RightButton) return WM_RBUTTONDOWN;
  return button == Qt::MiddleButton ? unsigned{WM_MBUTTONDOWN} : 0u;
}

unsigned releaseNumber(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return WM_LBUTTONUP;
  if (button == Qt::RightButton) return WM_RBUTTONUP;
  return button == Qt::MiddleButton ? unsigned{WM_MBUTTONUP} : 0u;
}

unsigned doubleClickNumber(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return WM_LBUTTONDBLCLK;
  if (button == Qt::RightButton) return WM_RBUTTONDOWN;
  return button == Qt::MiddleButton ? unsigned{WM_MBUTTONDBLCLK} : 0u;
}

HostWindowMessage mouseMessage(unsigned number, const QMouseEvent& event, const OdGsView& view) {
  return {.number = number,
          .pixel = {event.position().toPoint().x(), event.position().toPoint().y()},
          .point = view.toWorld({event.position().x(), event.position().y()}),
          .shift = event.modifiers().testFlag(Qt::ShiftModifier),
          .ctrl = event.modifiers().testFlag(Qt::ControlModifier),
          .alt = event.modifiers().testFlag(Qt::AltModifier)};
}
