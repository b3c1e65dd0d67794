#include "host/windowless/window.h"

int WindowlessWindow::popupMenu(const std::vector<HostMenuItem>& items, HostPixel) {
  m_last_menu = items;
  if (m_choices.empty()) return 0;
  const int choice = m_choices.front();
  m_choices.pop_front();
  return choice;
}
