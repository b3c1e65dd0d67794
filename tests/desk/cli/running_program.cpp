#include "tests/desk/cli/running_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "tests/desk/cli/program.h"

RunningProgram::RunningProgram(const std::filesystem::path& folder, std::vector<std::string> words)
    : m_folder(folder) {
  words.insert(words.begin(), SCRIBE_PROGRAM);
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const std::filesystem::path messages = folder / "messages";
  m_pid = ::fork();
  if (m_pid != 0) return;
  const int file = ::open(messages.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  ::dup2(file, STDOUT_FILENO);
  ::dup2(file, STDERR_FILENO);
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) ::unsetenv(name);
  // A sanitizer would keep what was freed for later checks, as if the program still had it.
  ::setenv("ASAN_OPTIONS", "quarantine_size_mb=1:thread_local_quarantine_size_kb=64", /*overwrite=*/1);
  if (::chdir(folder.c_str()) == 0) ::execv(pointers[0], pointers.data());
  std::_Exit(127);
}

RunningProgram::~RunningProgram() {
  if (m_end) return;
  signal(SIGKILL);
  wait();
}

void RunningProgram::signal(int number) const { ::kill(m_pid, number); }

std::vector<pid_t> RunningProgram::children() const {
  const std::string process = "/proc/" + std::to_string(m_pid);
  std::ifstream list(process + "/task/" + std::to_string(m_pid) + "/children");
  std::vector<pid_t> found;
  for (pid_t child = 0; list >> child;) found.push_back(child);
  return found;
}

std::size_t RunningProgram::peakBytes() const {
  constexpr std::size_t kKibibyte = 1024;
  std::ifstream status("/proc/" + std::to_string(m_pid) + "/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) return std::stoul(line.substr(6)) * kKibibyte;
  return 0;
}

std::optional<int> RunningProgram::wait(std::chrono::milliseconds longest) {
  const auto end = std::chrono::steady_clock::now() + longest;
  for (;;) {
    int status = 0;
    if (!m_end && ::waitpid(m_pid, &status, WNOHANG) == m_pid)
      m_end = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (m_end || std::chrono::steady_clock::now() >= end) return m_end;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

std::string RunningProgram::messages() const { return contentOf(m_folder / "messages"); }
