#include "host/timer_clients.h"

#include <utility>

#include "host/window.h"

void CWND_CLIENT::fire(HostTimer&) { m_window.post(m_message); }

bool CSYNC_CLIENT::takeSignal() { return std::exchange(m_signalled, false); }
