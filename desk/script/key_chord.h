#pragma once

#include <optional>
#include <string_view>

/// Modifier keys that are held down with another key or with a mouse button.
struct HeldKeys {
  bool shift = false;
  bool ctrl = false;
  bool alt = false;

  friend bool operator==(const HeldKeys&, const HeldKeys&) = default;
};

/// One key pressed with modifiers, as `Ctrl+Shift+Left` names it.
struct KeyChord {
  /// The virtual key number: 8 Backspace, 13 Enter, 37 Left, 65 A and so on.
  int key = 0;
  HeldKeys held;

  friend bool operator==(const KeyChord&, const KeyChord&) = default;
};

/// Takes the modifiers `Shift+`, `Ctrl+`, `Alt+` (any order and case, each at most once) off the front of
/// `text`, and leaves the rest there.
HeldKeys takeHeldKeys(std::u16string_view& text);

/// Reads a chord such as `Ctrl+Shift+Left` or `a`. Nothing if it names no key.
std::optional<KeyChord> parseKeyChord(std::u16string_view text);
