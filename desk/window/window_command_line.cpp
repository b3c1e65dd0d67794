#include "desk/window/window_command_line.h"

#include "desk/document/command_prompt.h"
#include "desk/window/command_edit.h"
#include "desk/window/command_panel.h"
#include "desk/window/qt_text.h"

void WindowCommandLine::showPrompt(std::u16string_view prompt) {
  m_awaits_command = isCommandPrompt(prompt);
  m_panel.showPrompt(toQt(prompt));
  m_panel.edit().setAwaitsCommand(m_awaits_command);
}

void WindowCommandLine::write(std::u16string_view text) { m_panel.write(toQt(text)); }
