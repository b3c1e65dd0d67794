#pragma once

#include "host/timer.h"

class HostWindow;

/// Posts a message to a window at each fire.
class CWND_CLIENT : public ITIMER_CLIENT {
 public:
  CWND_CLIENT(HostWindow& window, unsigned message) : m_window(window), m_message(message) {}
  void fire(HostTimer& timer) override;

 private:
  HostWindow& m_window;
  unsigned m_message;
};

/// Calls a plain function with a pointer of the caller's at each fire.
class CCALLBACK_CLIENT : public ITIMER_CLIENT {
 public:
  using Callback = void (*)(void* data, HostTimer& timer);
  CCALLBACK_CLIENT(Callback callback, void* data) : m_callback(callback), m_data(data) {}
  void fire(HostTimer& timer) override { m_callback(m_data, timer); }

 private:
  Callback m_callback;
  void* m_data;
};

/// Remembers that the timer fired until it is asked.
class CSYNC_CLIENT : public ITIMER_CLIENT {
 public:
  void fire(HostTimer&) override { m_signalled = true; }
  /// Whether the timer has fired since the last call.
  bool takeSignal();

 private:
  bool m_signalled = false;
};
