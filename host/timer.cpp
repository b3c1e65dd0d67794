#include "host/timer.h"

#include <algorithm>

HostTimer::HostTimer(HostTickSource& ticks, int base_period) : m_ticks(ticks), m_base_period(base_period) {}

HostTimer::~HostTimer() { stop(); }

void HostTimer::addClient(ITIMER_CLIENT& client) { m_clients.push_back(&client); }

void HostTimer::removeClient(ITIMER_CLIENT& client) { std::erase(m_clients, &client); }

void HostTimer::start(int reload_count) {
  stop();
  m_reload = reload_count;
  m_count = reload_count;
  m_subscription = m_ticks.start(m_base_period, [this] { tick(); });
}

void HostTimer::stop() {
  if (m_subscription) m_ticks.stop(m_subscription);
  m_subscription = 0;
}

void HostTimer::tick() {
  if (m_count > 0) {
    --m_count;
  } else if (m_count == 0) {
    m_count = -1;
    fireAll();
  }
}

void HostTimer::fireAll() {
  // A copy is walked, since a client may take itself or another one out.
  const std::vector<ITIMER_CLIENT*> clients = m_clients;
  for (ITIMER_CLIENT* client : clients) {
    if (std::find(m_clients.begin(), m_clients.end(), client) != m_clients.end()) client->fire(*this);
  }
}
