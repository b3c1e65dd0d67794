#pragma once

#include <QTimer>
#include <map>
#include <memory>

#include "host/tick_source.h"

/// Ticks of the window's event loop.
class QtTickSource : public HostTickSource {
 public:
  Subscription start(int period, std::function<void()> on_tick) override;
  void stop(Subscription subscription) override;

 private:
  /// A timer may be stopped from within its own tick, so it is deleted by the event loop.
  struct DeleteLater {
    void operator()(QTimer* timer) const { timer->deleteLater(); }
  };
  std::map<Subscription, std::unique_ptr<QTimer, DeleteLater>> m_timers;
  Subscription m_last = 0;
};
