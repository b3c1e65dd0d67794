#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "od/field/OdFieldValue.h"

/// How a drawing writes numbers where a field does not tell.
struct OdFieldUnits {
  int length = 2;            ///< 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional
  int length_precision = 4;  ///< digits behind the point, or the power of two of the smallest fraction
  int angle = 0;             ///< 0 degrees, 1 degrees, minutes and seconds, 2 gradians, 3 radians, 4 bearings
  int angle_precision = 0;
};

/// Where fields get what they show. Names compare without case; nothing means that there is no such thing, an
/// empty value that it is there and says nothing.
class OdFieldSource {
 public:
  virtual ~OdFieldSource() = default;
  /// What `\AcVar name` stands for.
  virtual std::optional<OdFieldValue> variable(std::u16string_view name) const = 0;
  /// A property of the object with that handle.
  virtual std::optional<OdFieldValue> property(std::uint64_t handle, std::u16string_view name) const = 0;
  virtual OdFieldUnits units() const = 0;
};
