#pragma once

#include <string>
#include <string_view>

/// A text by `%tc` case (1 upper, 2 lower, 3 first capital, 4 title) and, for one that names a file, `%fn`:
/// the sum of 1 folder, 2 name and 4 extension. A file's name without `%fn` stays whole.
std::u16string odFormatText(std::u16string_view text, std::u16string_view format);
