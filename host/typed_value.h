#pragma once

#include <optional>
#include <string_view>

#include "od/ge/OdGePoint3d.h"

/// Values as they are typed at a prompt.
namespace host {

/// A finite decimal number, such as "2.5", ".5", "+3" or "1e-3"; nothing for any other text.
std::optional<double> typed_number(std::u16string_view text);

/// A point in the coordinates that are typed: "x,y" and "x,y,z", "d<a" by length and degrees from the origin,
/// and the same behind "@" counted from `base`. A z that is not given is 0, behind "@" that of `base`.
std::optional<OdGePoint3d> typed_point(std::u16string_view text, const OdGePoint3d& base);

}  // namespace host
