#pragma once

#include <functional>

/// Where time comes from: calls back at a steady period.
class HostTickSource {
 public:
  using Subscription = int;  ///< never 0

  virtual ~HostTickSource() = default;
  /// Calls `on_tick` every `period` milliseconds until `stop`.
  virtual Subscription start(int period, std::function<void()> on_tick) = 0;
  /// Nothing is called after it; an unknown number does nothing.
  virtual void stop(Subscription subscription) = 0;
};
