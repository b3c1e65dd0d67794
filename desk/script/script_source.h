#pragma once

#include <deque>
#include <optional>
#include <string>

#include "desk/script/script_step.h"
#include "host/input.h"

class HostAnsweredEvents;
class HostGivenFields;
class HostHeldKeys;
class HostView;
class ScriptCommandLine;
class WindowlessClock;
class WindowlessWindow;

/// What the steps of a script work on. All outlive the source.
struct ScriptSurroundings {
  ScriptCommandLine& line;
  HostHeldKeys& keys;
  WindowlessClock& clock;
  HostAnsweredEvents& events;
  HostView& view;
  WindowlessWindow& window;
  HostGivenFields& fields;
};

/// Input from a script: a prompt that waits gets what the next step gives.
class ScriptSource : public HostInputSource {
 public:
  ScriptSource(Script script, ScriptSurroundings around) : m_script(std::move(script)), m_around(around) {}

  HostInput next() override;

  /// The answer that stands in the next step, if it is one; the step is then done. A question may be answered
  /// on the line behind the one that raises it.
  std::optional<ScriptAnswer> takeAnswer();
  /// The choice that stands in the next step, if it is one; the step is then done.
  std::optional<std::u16string> takeChoice();
  /// The code of a field that stands in the next step, if it is one; the step is then done.
  std::optional<std::u16string> takeField();
  /// What was asked when the script had come to its end; empty before.
  const std::u16string& promptAtEnd() const { return m_prompt_at_end; }

 private:
  /// The next step, done, if it is a `Step`; else null.
  template <typename Step>
  const Step* take();
  HostInput endOfScript();
  void perform(const ScriptStep& step);
  void type(const std::u16string& line);
  void send(std::vector<HostWindowMessage> messages);

  Script m_script;
  ScriptSurroundings m_around;
  std::deque<HostInput> m_waiting;
  std::size_t m_at = 0;
  std::u16string m_prompt_at_end;
};
