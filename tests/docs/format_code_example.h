#pragma once

#include <ostream>
#include <string>
#include <vector>

/// One example of docs/format-codes.md, as it stands there: with the characters that stand for what cannot be
/// seen.
struct format_code_example {
  int line = 0;       ///< in the document, from 1
  std::string code;   ///< the format-code string
  std::string reads;  ///< its parts, as `describe` tells them
  std::string plain;  ///< its text without codes
  std::string again;  ///< the string written back
};

/// How a failing test names its example.
inline void PrintTo(const format_code_example& example, std::ostream* out) { *out << example.code; }

/// The examples of a document: its blocks of the language `mtext`. Throws `std::runtime_error` for a block
/// that does not hold each of the four lines once, in their order.
std::vector<format_code_example> read_examples(const std::string& document);

/// What the characters of an example stand for: a line end is shown as U+23CE, a tab as U+2192.
std::u16string unshown(const std::string& shown);

/// A text as an example shows it; carriage returns are left out.
std::string shown(const std::u16string& text);
