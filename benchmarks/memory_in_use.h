#pragma once

#include <cstddef>

namespace benchmarks {

/// The bytes that this process has taken from its heap and not given back.
std::size_t memory_in_use();

/// The bytes that the value takes which `make` returns, alive while it is counted.
template <class Make>
std::size_t bytes_of(Make make) {
  const std::size_t before = memory_in_use();
  const auto made = make();
  return memory_in_use() - before;
}

}  // namespace benchmarks
