#pragma once

#include <deque>
#include <functional>

#include "host/input.h"
#include "host/key_state.h"

class QEventLoop;

/// Input of the window: what its widgets were given waits here until a prompt asks. A prompt that finds
/// nothing runs the event loop until there is something; prompts may wait within prompts.
class QtInputSource : public HostInputSource {
 public:
  /// `keys` shows the keys that were held when the message that is given out was sent, however late it is
  /// worked on.
  explicit QtInputSource(HostHeldKeys& keys) : m_keys(keys) {}

  HostInput next() override;

  /// Adds an input behind those that wait.
  void push(HostInput input);
  /// Adds a move of the mouse, or the question for its cursor that comes before one. What was told of the
  /// mouse and nobody has worked on yet is replaced by it.
  void pushMove(HostWindowMessage move);
  /// Drops the inputs that nobody has worked on yet.
  void forget() { m_inputs.clear(); }
  /// The window is gone: from now on there is nothing but the end of the input.
  void end();
  /// Whether there are inputs that nobody has worked on yet.
  bool hasInputs() const { return !m_inputs.empty(); }
  /// Is called each time when all inputs are worked on and a prompt is going to wait. It may push.
  void setOnIdle(std::function<void()> on_idle) { m_on_idle = std::move(on_idle); }

 private:
  void wait();

  HostHeldKeys& m_keys;
  std::deque<HostInput> m_inputs;
  std::function<void()> m_on_idle = [] {};
  QEventLoop* m_loop = nullptr;
  bool m_ended = false;
};
