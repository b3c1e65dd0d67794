#pragma once

#include <chrono>
#include <csignal>

/// Takes the signals of a batch one by one, where it waits for them: a child has ended, or somebody wants the
/// batch to end (Ctrl+C, SIGTERM). For as long as it lives they do nothing else.
class SignalWatch {
 public:
  SignalWatch();
  ~SignalWatch();
  SignalWatch(const SignalWatch&) = delete;
  SignalWatch& operator=(const SignalWatch&) = delete;

  /// Waits so long at most. True when somebody wants the batch to end.
  bool wait(std::chrono::milliseconds longest);
  /// What the children are to have blocked: a terminal and a scheduler tell them to end as they tell the
  /// batch, which is the one to decide.
  sigset_t blockedInChildren() const;

 private:
  sigset_t m_watched;
  sigset_t m_before;
};
