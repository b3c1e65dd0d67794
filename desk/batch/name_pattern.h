#pragma once

#include <string_view>

/// Whether the whole name is what the pattern says, in which `*` stands for any characters and `?` for one.
/// Names of a drawing compare without the case of the letters A to Z.
bool matchesName(std::u16string_view name, std::u16string_view pattern);
