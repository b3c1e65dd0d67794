#pragma once

#include "host/command_line.h"

class CommandPanel;

/// The command line of the window.
class WindowCommandLine : public HostCommandLine {
 public:
  /// The panel has to outlive this.
  explicit WindowCommandLine(CommandPanel& panel) : m_panel(panel) {}
  void showPrompt(std::u16string_view prompt) override;
  void write(std::u16string_view text) override;

  /// Whether the name of a command is awaited now.
  bool awaitsCommand() const { return m_awaits_command; }

 private:
  CommandPanel& m_panel;
  bool m_awaits_command = false;
};
