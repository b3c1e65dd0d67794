#pragma once

#include <deque>

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

  /// Adds an input behind those that wait. Mouse moves that nobody has seen yet are replaced by the newest.
  void push(HostInput input);
  /// The window is gone: from now on there is nothing but the end of the input.
  void end();
  /// Whether a prompt waits in the event loop now.
  bool isWaiting() const { return m_loop != nullptr; }

 private:
  bool replacesMove(const HostInput& input) const;

  HostHeldKeys& m_keys;
  std::deque<HostInput> m_inputs;
  QEventLoop* m_loop = nullptr;
  bool m_ended = false;
};
