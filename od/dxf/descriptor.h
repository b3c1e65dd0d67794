#pragma once

#include <unistd.h>

#include <string_view>
#include <utility>

namespace dxf {

/// An open file that is closed when it goes out of scope.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  bool is_open() const { return number_ >= 0; }
  int number() const { return number_; }
  /// Writes all the bytes, however often the system stops in between; false, with the reason in `errno`,
  /// where it refuses.
  bool write(std::string_view bytes) const;
  /// False where closing reports that the bytes did not arrive.
  bool close() {
    const int closing = number_;
    number_ = -1;
    return ::close(closing) == 0;
  }

 private:
  int number_;
};

}  // namespace dxf
