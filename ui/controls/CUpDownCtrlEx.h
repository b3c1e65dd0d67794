#pragma once

#include <cstdint>

/// The arrows beside a number: a position in a range, both ends included.
class CUpDownCtrlEx {
 public:
  CUpDownCtrlEx(std::int32_t low, std::int32_t high) : m_low(low), m_high(high), m_position(low) {}

  std::int32_t low() const { return m_low; }
  std::int32_t high() const { return m_high; }
  std::int32_t position() const { return m_position; }
  /// The position in the range that is nearest to `position`.
  std::int32_t clamped(std::int64_t position) const;
  /// Takes the nearest position of the range.
  void move(std::int64_t position) { m_position = clamped(position); }

 private:
  std::int32_t m_low;
  std::int32_t m_high;
  std::int32_t m_position;
};
