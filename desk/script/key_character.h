#pragma once

#include <optional>

#include "desk/script/key_chord.h"

/// The character that a keyboard of the US layout sends behind a pressed chord: a letter or mark, 8, 9, 13,
/// 27 or 32 for the keys with a character of their own, a control code with Ctrl. Nothing for a key without
/// one and for every chord with Alt, which stands for a menu shortcut.
std::optional<char16_t> characterOfChord(const KeyChord& chord);
