#include "tests/desk/cli/program.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void writeFile(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

fs::path scratch(const std::string& name) {
  static const fs::path folder = [] {
    const fs::path fresh = fs::temp_directory_path() / ("scribe-cli-test-" + std::to_string(getpid()));
    fs::remove_all(fresh);
    fs::create_directories(fresh);
    return fresh;
  }();
  return folder / name;
}

fs::path sampleCopy() {
  const fs::path copy = scratch("sample.dxf");
  fs::remove(scratch("sample.dxf.bak"));
  fs::copy_file(fs::path(SCRIBE_SOURCE_DIR) / "samples" / "first-floor.dxf", copy,
                fs::copy_options::overwrite_existing);
  return copy;
}

ProgramRun runProgram(const std::string& words, const std::string& input) {
  writeFile(scratch("in"), input);
  const std::string command = "cd " + scratch("").string() +
                              " && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM LC_ALL=C.UTF-8 " +
                              SCRIBE_PROGRAM + " " + words + " <in >out 2>err";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(scratch("out")), contentOf(scratch("err"))};
}
