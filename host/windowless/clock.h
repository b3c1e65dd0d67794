#pragma once

#include <cstdint>
#include <map>

#include "host/tick_source.h"

/// A clock that stands still until it is moved.
class WindowlessClock : public HostTickSource {
 public:
  Subscription start(int period, std::function<void()> on_tick) override;
  void stop(Subscription subscription) override;

  /// Moves the clock; every tick that falls due on the way is called in the order of time.
  void advance(int milliseconds);
  /// Milliseconds since the clock was made.
  std::int64_t now() const { return m_now; }

 private:
  struct Ticking {
    int period;
    std::int64_t due;
    std::function<void()> on_tick;
  };

  std::map<Subscription, Ticking> m_ticking;
  std::int64_t m_now = 0;
  Subscription m_last = 0;
};
