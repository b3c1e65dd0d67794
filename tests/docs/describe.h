#pragma once

#include <string>

#include "mtext/multitext.h"

/// A text in words: its parts in order, each with what its format differs from `base` in, and with the format
/// of the paragraph that it begins. `"Door" (height 5, bold), 2 blanks, paragraph (left 3), stack 1/2`
std::string describe(const mtext::multitext& text, const mtext::format::string& base);
