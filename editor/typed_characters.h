#pragma once

#include <string>

/// Makes characters of the units that a keyboard sends: a character beyond the basic plane comes as two, and
/// is none before the second has come. Half a character that never becomes whole is dropped.
class typed_characters {
 public:
  /// The character that `unit` is or ends; empty while its other half is awaited.
  std::u16string add(char16_t unit);
  /// The next unit begins a character.
  void forget() { m_high_half = 0; }

 private:
  char16_t m_high_half = 0;
};
