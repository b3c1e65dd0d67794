#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fuzz {

/// The bytes of one input, taken from the front as choices. Behind the last byte all choices are 0, so every
/// input is a whole one.
class byte_source {
 public:
  byte_source(const std::uint8_t* data, std::size_t size)
      : m_rest(reinterpret_cast<const char*>(data), size) {}

  bool empty() const { return m_rest.empty(); }

  std::uint8_t byte() {
    if (m_rest.empty()) return 0;
    const auto first = static_cast<std::uint8_t>(m_rest.front());
    m_rest.remove_prefix(1);
    return first;
  }

  /// A number from 0 up to `most`, which is included; takes a second byte where one is too small.
  std::size_t up_to(std::size_t most) {
    std::size_t value = byte();
    if (most > 255) value = value * 256 + byte();
    return value % (most + 1);
  }

  /// One of the values of `table`.
  template <class Value, std::size_t Size>
  const Value& one_of(const Value (&table)[Size]) {
    return table[up_to(Size - 1)];
  }

  bool flag() { return byte() % 2 == 1; }

  /// The next `count` bytes, or those that there are.
  std::string_view bytes(std::size_t count) {
    const std::string_view taken = m_rest.substr(0, count);
    m_rest.remove_prefix(taken.size());
    return taken;
  }

  /// All that was not taken yet.
  std::string_view rest() { return bytes(m_rest.size()); }

 private:
  std::string_view m_rest;
};

}  // namespace fuzz
