#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Where prompts and messages are shown.
class HostCommandLine {
 public:
  virtual ~HostCommandLine() = default;
  /// Shows what is being asked for; stands until the next prompt. Empty: nothing is asked for.
  virtual void showPrompt(std::u16string_view prompt) = 0;
  /// Adds lines to the history.
  virtual void write(std::u16string_view text) = 0;
};

/// A command line without a window: keeps the history, prompts among it.
class HostCommandLog : public HostCommandLine {
 public:
  void showPrompt(std::u16string_view prompt) override;
  void write(std::u16string_view text) override;
  /// Prompts and messages in their order.
  const std::vector<std::u16string>& lines() const { return m_lines; }

 private:
  std::vector<std::u16string> m_lines;
};
