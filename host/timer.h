#pragma once

#include <vector>

#include "host/tick_source.h"

class HostTimer;

/// Something that a timer calls, once a fire.
class ITIMER_CLIENT {
 public:
  virtual ~ITIMER_CLIENT() = default;
  virtual void fire(HostTimer& timer) = 0;
};

/// Counts ticks down and calls its clients at the end of each count.
///
/// At a tick a count above 0 goes down by one; a count of 0 becomes -1 and fires every client; a negative
/// count stands still until a client reloads it. So a reload of n fires at the tick n + 1.
class HostTimer {
 public:
  /// Milliseconds from tick to tick.
  static constexpr int kBasePeriod = 50;

  /// `ticks` has to outlive the timer.
  explicit HostTimer(HostTickSource& ticks, int base_period = kBasePeriod);
  ~HostTimer();
  HostTimer(const HostTimer&) = delete;
  HostTimer& operator=(const HostTimer&) = delete;

  /// Adds a client, which the caller keeps alive until `removeClient` or the timer's end.
  void addClient(ITIMER_CLIENT& client);
  void removeClient(ITIMER_CLIENT& client);
  /// Sets the reload and starts to count from it.
  void start(int reload);
  void stop();
  bool isRunning() const { return m_subscription != 0; }
  /// Starts the count anew, from a client's `fire`.
  void reload() { m_count = m_reload; }
  int count() const { return m_count; }
  /// One tick of the base period. The tick source calls it.
  void tick();

 private:
  void fireAll();

  HostTickSource& m_ticks;
  std::vector<ITIMER_CLIENT*> m_clients;
  int m_base_period;
  int m_reload = 0;
  int m_count = -1;
  HostTickSource::Subscription m_subscription = 0;
};
