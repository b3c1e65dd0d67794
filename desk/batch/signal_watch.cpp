#include "desk/batch/signal_watch.h"

#include <ctime>

SignalWatch::SignalWatch() {
  sigemptyset(&m_watched);
  for (const int number : {SIGCHLD, SIGINT, SIGTERM}) sigaddset(&m_watched, number);
  ::sigprocmask(SIG_BLOCK, &m_watched, &m_before);
}

SignalWatch::~SignalWatch() { ::sigprocmask(SIG_SETMASK, &m_before, nullptr); }

sigset_t SignalWatch::blockedInChildren() const {
  sigset_t blocked = m_before;
  sigaddset(&blocked, SIGINT);
  sigaddset(&blocked, SIGTERM);
  return blocked;
}

bool SignalWatch::wait(std::chrono::milliseconds longest) {
  constexpr long kNanoseconds = 1'000'000;
  const timespec time{.tv_sec = longest.count() / 1000, .tv_nsec = longest.count() % 1000 * kNanoseconds};
  const int number = ::sigtimedwait(&m_watched, nullptr, &time);
  return number == SIGINT || number == SIGTERM;
}
