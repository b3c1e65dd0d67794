#include <gmock/gmock.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/desk/cli/batch_folder.h"

using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int kDrawings = 10;

/// A batch that runs at a terminal, which shows what it writes and can be typed at.
class BatchTerminal : public BatchFolder {
 protected:
  BatchTerminal() {
    copySamples(kDrawings);
    m_pid = ::forkpty(&m_terminal, nullptr, nullptr, nullptr);
    if (m_pid != 0) return;
    if (::chdir(scratch("").c_str()) == 0)
      ::execl(SCRIBE_PROGRAM, "scribe", "batch", "TCase tOggle", "plans", "--in-place", "--jobs", "2",
              nullptr);
    std::_Exit(127);
  }
  ~BatchTerminal() override { ::close(m_terminal); }

  void type(char character) const { EXPECT_EQ(::write(m_terminal, &character, 1), 1); }
  /// Reads what is shown until `wanted` is there, or the batch has ended.
  void readUntil(const std::string& wanted) {
    char block[512];
    while (m_shown.find(wanted) == m_shown.npos) {
      const ssize_t count = ::read(m_terminal, block, sizeof block);
      if (count <= 0) return;
      m_shown.append(block, static_cast<std::size_t>(count));
    }
  }
  int end() {
    readUntil("nothing that is ever shown");
    int status = 0;
    ::waitpid(m_pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  const std::string& shown() const { return m_shown; }

 private:
  int m_terminal = -1;
  pid_t m_pid = 0;
  std::string m_shown;
};

}  // namespace

TEST_F(BatchTerminal, shows_one_line_that_is_drawn_anew_and_takes_it_away) {
  EXPECT_EQ(end(), 0);
  EXPECT_THAT(shown(), HasSubstr("\r\x1B[K["));
  EXPECT_THAT(shown(), HasSubstr("of 10 drawings"));
  EXPECT_THAT(shown(), HasSubstr(" left"));
  EXPECT_THAT(shown(), HasSubstr("\r\x1B[K10 of 10 drawings done"));
}

TEST_F(BatchTerminal, ctrl_c_lets_the_drawings_end_that_are_worked_on) {
  readUntil("of 10 drawings");
  type('\x03');
  EXPECT_EQ(end(), 1);
  EXPECT_THAT(shown(), HasSubstr("No more drawings are begun"));
  EXPECT_THAT(shown(), HasSubstr("0 failed"));
  EXPECT_THAT(shown(), Not(HasSubstr("10 of 10 drawings done")));
}

TEST_F(BatchTerminal, ctrl_c_twice_stops_them_and_leaves_them_as_they_were) {
  readUntil("of 10 drawings");
  type('\x03');
  readUntil("No more drawings are begun");
  type('\x03');
  EXPECT_EQ(end(), 1);
  for (const std::string& name : names()) EXPECT_FALSE(name.ends_with(".scribe-staged")) << name;
}
