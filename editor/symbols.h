#pragma once

#include <optional>
#include <span>

namespace editing {

/// A command that inserts a character.
struct symbol_row {
  int command;
  char16_t character;
};

/// All rows, in their order. The last one is never reached: its command stands in an earlier row. It is kept
/// deliberately.
std::span<const symbol_row> symbol_table();

/// The character of the first row for `command`; nothing for a command that inserts none.
std::optional<char16_t> symbol_of(int command);

}  // namespace editing
