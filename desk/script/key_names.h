#pragma once

#include <optional>
#include <string_view>

/// The virtual key number behind a key's name: a letter, a digit, a mark of the main block (`;`, `+`), `F1`
/// to `F24`, or a word such as `Left` or `PageUp`. Case does not count. Nothing if no key has this name.
std::optional<int> keyByName(std::u16string_view name);

/// A key on a keyboard of the US layout and whether Shift has to be held to get a character from it.
struct KeyOfCharacter {
  int key = 0;
  bool shift = false;

  friend bool operator==(const KeyOfCharacter&, const KeyOfCharacter&) = default;
};

/// The key that types the UTF-16 unit `unit`; a unit that no key of the layout gives is 231, the number under
/// which composed characters arrive.
KeyOfCharacter keyOfCharacter(char16_t unit);
