#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "host/input.h"

/// The keyboard end of the command line for program code: what it is given counts as typed.
///
/// "^M" and a line feed end the line, "^C" cancels; other characters wait for one of them. What is given
/// while a message filter works is read as soon as the filter returns, before anything else.
class HostCommandInput {
 public:
  /// Types `text`.
  void type(std::u16string_view text);
  /// Types one character, which stands for itself.
  void typeCharacter(char16_t unit) { m_line += unit; }
  /// Takes back the last character of the line that has not ended.
  void eraseLast();
  void endLine();
  void cancel();
  /// Forgets what has been typed of a line that has not ended.
  void dropUnfinished() { m_line.clear(); }
  /// Takes the next whole line or cancel; nothing if none is waiting.
  std::optional<HostInput> take();
  /// What has been typed of a line that has not ended.
  const std::u16string& unfinished() const { return m_line; }

 private:
  std::u16string m_line;
  std::deque<HostInput> m_waiting;
};
