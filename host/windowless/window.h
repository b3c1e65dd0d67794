#pragma once

#include <deque>

#include "host/window.h"

/// A window that remembers what was done to it; menus are answered beforehand.
class WindowlessWindow : public HostWindow {
 public:
  void setCursor(HostCursor shape) override { m_cursor = shape; }
  void captureMouse() override { m_captured = true; }
  void releaseMouse() override { m_captured = false; }
  void takeFocus() override {}
  int popupMenu(const std::vector<HostMenuItem>& items, HostPixel at) override;
  void post(unsigned message) override { m_posted.push_back(message); }

  /// The next menu returns this command.
  void choose(int command) { m_choices.push_back(command); }
  HostCursor cursor() const { return m_cursor; }
  bool isCaptured() const { return m_captured; }
  /// The rows of the menu shown last.
  const std::vector<HostMenuItem>& lastMenu() const { return m_last_menu; }
  /// Messages that were posted, in their order.
  const std::vector<unsigned>& posted() const { return m_posted; }

 private:
  HostCursor m_cursor = IDC_ARROW;
  bool m_captured = false;
  std::deque<int> m_choices;
  std::vector<HostMenuItem> m_last_menu;
  std::vector<unsigned> m_posted;
};
