#include "host/command_line.h"

void HostCommandLog::showPrompt(std::u16string_view prompt) {
  if (!prompt.empty()) m_lines.emplace_back(prompt);
}

void HostCommandLog::write(std::u16string_view text) { m_lines.emplace_back(text); }
