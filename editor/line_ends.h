#pragma once

#include <string>

namespace editing {

/// `text` without the line ends that it ends with.
std::u16string without_line_ends(std::u16string text);

}  // namespace editing
