#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The words of a command line: blanks end them, and belong to what stands between two quotes, single or
/// double. Throws std::invalid_argument with a sentence for the user when a quote is not closed.
std::vector<std::string> commandWords(std::string_view line);
