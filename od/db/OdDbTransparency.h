#pragma once

#include <cstdint>

/// How much of what lies below an entity is seen.
struct OdDbTransparency {
  enum Method : std::uint8_t { kByLayer, kByBlock, kByAlpha };

  Method method = kByLayer;
  std::uint8_t alpha = 255;  ///< 255 opaque to 0 invisible; counts for `kByAlpha` alone

  /// From the number that files hold.
  static OdDbTransparency fromRaw(std::uint32_t raw) {
    if (raw >> 24 == 1) return {kByBlock, 255};
    if (raw >> 24 == 2) return {kByAlpha, static_cast<std::uint8_t>(raw)};
    return {};
  }
  friend bool operator==(const OdDbTransparency&, const OdDbTransparency&) = default;
};
