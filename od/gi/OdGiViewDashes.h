#pragma once

/// Name of a line type that no drawing has: dashes of the view, measured in its pixels.
inline constexpr const char16_t* kOdGiViewDashes = u"*dashes";
