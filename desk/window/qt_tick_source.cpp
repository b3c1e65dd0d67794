#include "desk/window/qt_tick_source.h"

HostTickSource::Subscription QtTickSource::start(int period, std::function<void()> on_tick) {
  std::unique_ptr<QTimer, DeleteLater> timer(new QTimer);
  timer->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer.get(), &QTimer::timeout, timer.get(), std::move(on_tick));
  timer->start(period);
  m_timers[++m_last] = std::move(timer);
  return m_last;
}

void QtTickSource::stop(Subscription subscription) {
  const auto found = m_timers.find(subscription);
  if (found == m_timers.end()) return;
  found->second->stop();
  m_timers.erase(found);
}
