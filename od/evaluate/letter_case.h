#pragma once

#include <string>
#include <string_view>

/// A text in a case by its number: 1 upper, 2 lower, 3 first capital, 4 first letter of each word capital; as
/// it is for any other.
std::u16string odInLetterCase(std::u16string_view text, int letterCase);
