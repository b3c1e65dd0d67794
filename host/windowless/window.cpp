#include "host/windowless/window.h"

#include <algorithm>

#include "od/base/unicode.h"

namespace {

std::u16string number_text(int command) { return odToUtf16(std::to_string(command)); }

}  // namespace

void WindowlessWindow::choose(int command) { choose(number_text(command)); }

int WindowlessWindow::popupMenu(const HostMenu& menu, HostPixel at) {
  m_last_menu = menu;
  m_last_place = at;
  m_tip_at_menu = m_tip;
  if (m_choices.empty()) return 0;
  const std::u16string choice = std::move(m_choices.front());
  m_choices.pop_front();
  const auto rows = host::all_rows(menu);
  const auto chosen = std::find_if(rows.begin(), rows.end(), [&choice](const HostMenuItem* row) {
    const bool meant = odEqualNoCase(row->text, choice) || number_text(row->command) == choice;
    return meant && row->enabled && row->command != 0;
  });
  if (chosen != rows.end()) return (*chosen)->command;
  m_refused.push_back(choice);
  return 0;
}
