#pragma once

#include <functional>

#include "host/timer.h"
#include "host/timer_clients.h"

/// Makes the caret blink: every 400 ms it goes or comes.
class caret_blink {
 public:
  /// `ticks` has to outlive it. `on_blink` is called each time it is due.
  caret_blink(HostTickSource& ticks, std::function<void()> on_blink);
  ~caret_blink();

  void start();
  void stop() { m_timer.stop(); }
  bool is_visible() const { return m_visible; }
  /// The caret has been painted as it now is. Until then it does not change again, so that a slow view never
  /// skips a phase.
  void set_painted() { m_toggled = false; }

 private:
  /// A count of 7 ticks of 50 ms fires at the eighth.
  static constexpr int kReload = 7;
  static void on_timer(void* blink, HostTimer& timer);

  std::function<void()> m_on_blink;
  HostTimer m_timer;
  CCALLBACK_CLIENT m_client;
  bool m_visible = true;
  bool m_toggled = false;
};
