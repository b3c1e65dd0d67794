#include "desk/batch/worker_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

extern char** environ;

namespace {

constexpr const char* kThisProgram = "/proc/self/exe";

/// A file in memory, without a name.
dxf::Descriptor memoryFile() {
  dxf::Descriptor file(::memfd_create("scribe-batch", MFD_CLOEXEC));
  if (!file.is_open()) throw std::system_error(errno, std::generic_category());
  return file;
}

std::string contentOf(const dxf::Descriptor& file) {
  std::string content(static_cast<std::size_t>(::lseek(file.number(), 0, SEEK_END)), '\0');
  std::size_t at = 0;
  while (at < content.size()) {
    const ssize_t count =
        ::pread(file.number(), content.data() + at, content.size() - at, static_cast<off_t>(at));
    if (count <= 0) break;
    at += static_cast<std::size_t>(count);
  }
  content.resize(at);
  return content;
}

std::string onOneLine(std::string text) {
  while (!text.empty() && text.back() == '\n') text.pop_back();
  std::ranges::replace(text, '\n', ' ');
  return text;
}

std::string howItEnded(int status) {
  if (!WIFSIGNALED(status)) return "It ended with " + std::to_string(WEXITSTATUS(status)) + ".";
  const char* const name = ::sigdescr_np(WTERMSIG(status));
  return "Its process was ended by signal " + std::to_string(WTERMSIG(status)) +
         (name ? std::string(" (") + name + ")." : ".");
}

/// What a new process begins with.
struct Beginning {
  posix_spawn_file_actions_t files;
  posix_spawnattr_t attributes;

  Beginning() {
    ::posix_spawn_file_actions_init(&files);
    ::posix_spawnattr_init(&attributes);
  }
  ~Beginning() {
    ::posix_spawn_file_actions_destroy(&files);
    ::posix_spawnattr_destroy(&attributes);
  }
  Beginning(const Beginning&) = delete;
  Beginning& operator=(const Beginning&) = delete;
};

pid_t start(std::vector<std::string>& words, int output, int error, const sigset_t& signals) {
  Beginning beginning;
  ::posix_spawn_file_actions_addopen(&beginning.files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  ::posix_spawn_file_actions_adddup2(&beginning.files, output, STDOUT_FILENO);
  ::posix_spawn_file_actions_adddup2(&beginning.files, error, STDERR_FILENO);
  ::posix_spawnattr_setflags(&beginning.attributes, POSIX_SPAWN_SETSIGMASK);
  ::posix_spawnattr_setsigmask(&beginning.attributes, &signals);
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  pid_t pid = 0;
  const int failure =
      ::posix_spawn(&pid, kThisProgram, &beginning.files, &beginning.attributes, pointers.data(), environ);
  if (failure != 0) throw std::system_error(failure, std::generic_category());
  return pid;
}

}  // namespace

WorkerProcess::WorkerProcess(std::vector<std::string> words, const sigset_t& signals)
    : m_output(memoryFile()), m_error(memoryFile()), m_start(std::chrono::steady_clock::now()) {
  words.insert(words.begin(), "scribe");
  m_pid = start(words, m_output.number(), m_error.number(), signals);
}

std::optional<WorkerEnd> WorkerProcess::poll() {
  int status = 0;
  struct rusage usage {};
  if (::wait4(m_pid, &status, WNOHANG, &usage) != m_pid) return std::nullopt;
  constexpr std::size_t kKibibyte = 1024;
  WorkerEnd end{.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
                .output = contentOf(m_output),
                .complaint = onOneLine(contentOf(m_error)),
                .seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count(),
                .peak_bytes = static_cast<std::size_t>(usage.ru_maxrss) * kKibibyte};
  if (end.exit_code != 0 && (end.complaint.empty() || end.exit_code < 0)) {
    if (!end.complaint.empty()) end.complaint += ' ';
    end.complaint += howItEnded(status);
  }
  return end;
}

void WorkerProcess::kill() const { ::kill(m_pid, SIGKILL); }

void WorkerProcess::end() {
  kill();
  ::waitpid(m_pid, nullptr, 0);
}
