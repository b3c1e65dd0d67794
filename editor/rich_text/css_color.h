#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace rich {

/// A colour of CSS, in lower case, as 0xRRGGBB: `#rgb`, `#rrggbb`, `rgb(r, g, b)` or one of the sixteen old
/// names.
std::optional<std::uint32_t> css_color(std::string_view value);

}  // namespace rich
