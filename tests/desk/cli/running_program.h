#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// A run of the built program that the test goes on beside, without a display and with its output in a file.
class RunningProgram {
 public:
  /// `folder` becomes its current one; its messages go to the file `messages` there.
  RunningProgram(const std::filesystem::path& folder, std::vector<std::string> words);
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  void signal(int number) const;
  /// The processes that it has started and that still run.
  std::vector<pid_t> children() const;
  /// The most memory that it had so far, in bytes; 0 when it has ended.
  std::size_t peakBytes() const;
  /// Its exit code when it has ended, -1 after a signal; waits so long at most.
  std::optional<int> wait(std::chrono::milliseconds longest = std::chrono::minutes(2));
  std::string messages() const;

 private:
  std::filesystem::path m_folder;
  pid_t m_pid = 0;
  std::optional<int> m_end;
};
