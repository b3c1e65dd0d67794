#pragma once

#include <functional>

#include "host/command_line.h"

/// The command line of a script: messages go to a function, the prompt is remembered.
class ScriptCommandLine : public HostCommandLine {
 public:
  using Write = std::function<void(std::u16string_view line)>;
  explicit ScriptCommandLine(Write write) : m_write(std::move(write)) {}

  void showPrompt(std::u16string_view prompt) override {
    if (!prompt.empty()) m_prompt = prompt;
  }
  void write(std::u16string_view text) override { m_write(text); }

  /// What was asked last.
  const std::u16string& prompt() const { return m_prompt; }
  /// Whether that was the name of a command.
  bool awaitsCommand() const;

 private:
  Write m_write;
  std::u16string m_prompt;
};
