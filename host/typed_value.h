#pragma once

#include <optional>
#include <string_view>

#include "od/ge/OdGePoint3d.h"

/// Values as they are typed at a prompt.
namespace host {

/// Greater numbers are none: they overflow as soon as a few of them are multiplied.
constexpr double kGreatestNumber = 1e99;

/// A decimal number, such as "2.5", ".5", "+3" or "1e-3"; nothing for any other text, and beyond
/// `kGreatestNumber`.
std::optional<double> typed_number(std::u16string_view text);

/// A point in the coordinates that are typed: "x,y" and "x,y,z", "d<a" by length and degrees from the origin,
/// and the same behind "@" counted from `base`. A z that is not given is 0, behind "@" that of `base`.
std::optional<OdGePoint3d> typed_point(std::u16string_view text, const OdGePoint3d& base);

/// A point that is seen from `base`: "12" lies so far towards `cursor`, "<30" as far as the cursor in the
/// direction of 30 degrees, "12<30" needs no cursor. Nothing for any other text, or where a cursor is needed
/// and none is known or it lies on the base.
std::optional<OdGePoint3d> typed_along(std::u16string_view text, const OdGePoint3d& base,
                                       const std::optional<OdGePoint3d>& cursor);

/// An angle in degrees, with or without "<" in front; in radians.
std::optional<double> typed_angle(std::u16string_view text);

}  // namespace host
