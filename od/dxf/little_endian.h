#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace dxf {

/// The number in the bytes of `data`, lowest first; at most 8 bytes.
inline std::uint64_t read_little_endian(std::string_view data) {
  std::uint64_t value = 0;
  for (std::size_t i = data.size(); i-- > 0;) value = value << 8 | static_cast<unsigned char>(data[i]);
  return value;
}

/// The same with the sign of the highest byte.
inline std::int64_t read_signed_little_endian(std::string_view data) {
  const int unused = 64 - 8 * static_cast<int>(data.size());
  return static_cast<std::int64_t>(read_little_endian(data) << unused) >> unused;
}

/// Appends the lowest `size` bytes of `value`, lowest first.
inline void append_little_endian(std::uint64_t value, int size, std::string& data) {
  for (int i = 0; i < size; ++i) data += static_cast<char>(value >> (8 * i) & 0xFF);
}

}  // namespace dxf
