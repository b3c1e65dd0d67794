#pragma once

#include <string>

/// What is looked for in the texts of drawings, and what is to stand there instead; UTF-8.
struct TextReplacement {
  std::string find = {};
  std::string replace = {};
  bool is_expression = false;  ///< a regular expression; `$1` in `replace` is its first group
  bool ignores_case = false;
};
