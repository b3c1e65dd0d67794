#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "host/window.h"

/// A window that remembers what was done to it; menus are answered beforehand.
class WindowlessWindow : public HostWindow {
 public:
  void setCursor(HostCursor shape) override { m_cursor = shape; }
  void captureMouse() override { m_captured = true; }
  void releaseMouse() override { m_captured = false; }
  void takeFocus() override { ++m_focus_taken; }
  HostPixel fromScreen(HostPixel screen) const override { return screen; }
  int popupMenu(const HostMenu& menu, HostPixel at) override;
  void showTip(std::u16string_view text) override { m_tip = text; }
  void hideTip() override { m_tip.clear(); }
  void post(unsigned message) override { m_posted.push_back(message); }

  /// Chooses this command in the next menu.
  void choose(int command);
  /// Chooses the row with this text, without case, or with this number.
  void choose(std::u16string_view entry) { m_choices.emplace_back(entry); }
  std::size_t choicesLeft() const { return m_choices.size(); }
  /// Choices for which the menu had no row that can be chosen.
  const std::vector<std::u16string>& refused() const { return m_refused; }
  HostCursor cursor() const { return m_cursor; }
  /// How often the view was given the focus.
  int focusTaken() const { return m_focus_taken; }
  bool isCaptured() const { return m_captured; }
  /// The text beside the mouse; empty while none is shown.
  const std::u16string& tip() const { return m_tip; }
  /// The rows of the menu shown last.
  const HostMenu& lastMenu() const { return m_last_menu; }
  /// Where it was shown.
  HostPixel lastMenuPlace() const { return m_last_place; }
  /// The text that was beside the mouse while it was open.
  const std::u16string& tipAtLastMenu() const { return m_tip_at_menu; }
  /// Messages that were posted, in their order.
  const std::vector<unsigned>& posted() const { return m_posted; }

 private:
  HostCursor m_cursor = IDC_ARROW;
  bool m_captured = false;
  int m_focus_taken = 0;
  std::u16string m_tip;
  std::deque<std::u16string> m_choices;
  std::vector<std::u16string> m_refused;
  HostMenu m_last_menu;
  HostPixel m_last_place;
  std::u16string m_tip_at_menu;
  std::vector<unsigned> m_posted;
};
