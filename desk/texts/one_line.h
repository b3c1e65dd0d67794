#pragma once

#include <string>
#include <string_view>

/// A text as it is listed on one line: line feeds become `\n`, tabs blanks.
std::string onOneLine(std::string_view text);
