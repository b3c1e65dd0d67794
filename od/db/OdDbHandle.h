#pragma once

#include <compare>
#include <cstdint>
#include <functional>

#include "od/base/OdString.h"

/// The number that names an object in its drawing file. 0 names nothing.
class OdDbHandle {
 public:
  OdDbHandle() = default;
  explicit OdDbHandle(std::uint64_t value) : m_value(value) {}

  bool isNull() const { return m_value == 0; }
  std::uint64_t value() const { return m_value; }
  /// Upper case hexadecimal digits without leading zeros, as files write it.
  OdString ascii() const;

  friend auto operator<=>(const OdDbHandle&, const OdDbHandle&) = default;

 private:
  std::uint64_t m_value = 0;
};

template <>
struct std::hash<OdDbHandle> {
  std::size_t operator()(const OdDbHandle& handle) const noexcept {
    return std::hash<std::uint64_t>{}(handle.value());
  }
};
