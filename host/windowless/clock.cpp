#include "host/windowless/clock.h"

#include <algorithm>

HostTickSource::Subscription WindowlessClock::start(int period, std::function<void()> on_tick) {
  m_ticking[++m_last] = {period, m_now + period, std::move(on_tick)};
  return m_last;
}

void WindowlessClock::stop(Subscription subscription) { m_ticking.erase(subscription); }

void WindowlessClock::advance(int milliseconds) {
  const std::int64_t end = m_now + milliseconds;
  const auto earlier = [](const auto& a, const auto& b) { return a.second.due < b.second.due; };
  for (;;) {
    const auto next = std::min_element(m_ticking.begin(), m_ticking.end(), earlier);
    if (next == m_ticking.end() || next->second.due > end) break;
    m_now = next->second.due;
    next->second.due += next->second.period;
    const std::function<void()> on_tick = next->second.on_tick;  // it may stop itself
    on_tick();
  }
  m_now = end;
}
