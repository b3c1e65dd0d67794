#include "od/dxf/descriptor.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <string>

namespace {

struct Pipe {
  explicit Pipe(int flags) : Pipe(opened(flags)) {}
  dxf::Descriptor out;
  dxf::Descriptor in;

 private:
  using Ends = std::array<int, 2>;
  explicit Pipe(const Ends& ends) : out(ends[0]), in(ends[1]) {}
  static Ends opened(int flags) {
    Ends ends{-1, -1};
    EXPECT_EQ(::pipe2(ends.data(), flags), 0);
    return ends;
  }
};

}  // namespace

TEST(Descriptor, writes_all_its_bytes) {
  const Pipe pipe(O_CLOEXEC);
  ASSERT_TRUE(pipe.in.write("one "));
  ASSERT_TRUE(pipe.in.write(""));
  ASSERT_TRUE(pipe.in.write("two"));
  std::string read(16, '\0');
  read.resize(static_cast<std::size_t>(::read(pipe.out.number(), read.data(), read.size())));
  EXPECT_EQ(read, "one two");
}

TEST(Descriptor, tells_when_not_all_could_be_written_and_why) {
  const Pipe pipe(O_CLOEXEC | O_NONBLOCK);
  EXPECT_FALSE(pipe.in.write(std::string(10'000'000, 'x')));
  EXPECT_EQ(errno, EAGAIN);
  EXPECT_FALSE(pipe.out.write("x"));
  EXPECT_EQ(errno, EBADF);
}
