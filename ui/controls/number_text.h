#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Numbers as the boxes of the toolbar read and print them: with a point in every language.
namespace controls {

/// The number that a whole text is, possibly an infinite one. Blanks may stand before it and nothing behind
/// it. The empty text is 0: nothing is left over behind the number that it does not have. Nothing for any
/// other text.
std::optional<double> whole_number(std::u16string_view text);

/// The number that a text begins with; 0 where it begins with none, or with one that is not finite.
float leading_number(std::u16string_view text);

/// `value` with `digits` digits behind its point, and always with the point.
std::u16string fixed_text(double value, int digits);

/// `value` with at most `digits` significant digits and without trailing zeros.
std::u16string short_text(double value, int digits);

}  // namespace controls
