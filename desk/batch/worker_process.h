#pragma once

#include <sys/types.h>

#include <chrono>
#include <csignal>
#include <optional>
#include <string>
#include <vector>

#include "od/dxf/descriptor.h"

/// What came of a process that has ended.
struct WorkerEnd {
  int exit_code = 0;           ///< -1 when a signal ended it
  std::string output;          ///< what it wrote to standard output
  std::string complaint;       ///< what it wrote to standard error, or how it ended, as one line
  double seconds = 0;          ///< from start to end
  std::size_t peak_bytes = 0;  ///< the most memory that it had
};

/// This program once more, in a process of its own.
class WorkerProcess {
 public:
  /// `words` are its command line behind the program's name, `signals` those that it has blocked. Throws
  /// std::system_error when there is no room for another process.
  WorkerProcess(std::vector<std::string> words, const sigset_t& signals);
  WorkerProcess(WorkerProcess&&) noexcept = default;
  WorkerProcess& operator=(WorkerProcess&&) = delete;

  /// What came of it; nothing as long as it runs. After that the process is gone.
  std::optional<WorkerEnd> poll();
  void kill() const;
  /// Kills it and waits until it is gone.
  void end();

 private:
  dxf::Descriptor m_output;
  dxf::Descriptor m_error;
  pid_t m_pid = 0;
  std::chrono::steady_clock::time_point m_start;
};
