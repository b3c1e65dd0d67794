#include "desk/script/script_window.h"

#include "desk/script/script_source.h"

int ScriptWindow::popupMenu(const HostMenu& menu, HostPixel at) {
  if (choicesLeft() == 0 && m_source)
    if (const auto next = m_source->takeChoice()) choose(*next);
  return WindowlessWindow::popupMenu(menu, at);
}
