#include "desk/script/key_chord.h"

#include "desk/script/key_names.h"
#include "od/base/unicode.h"

namespace {

bool takeWord(std::u16string_view& text, std::u16string_view word) {
  if (text.size() < word.size() || !odEqualNoCase(text.substr(0, word.size()), word)) return false;
  text.remove_prefix(word.size());
  return true;
}

}  // namespace

HeldKeys takeHeldKeys(std::u16string_view& text) {
  HeldKeys held;
  for (;;) {
    if (!held.shift && takeWord(text, u"Shift+")) {
      held.shift = true;
    } else if (!held.ctrl && takeWord(text, u"Ctrl+")) {
      held.ctrl = true;
    } else if (!held.alt && takeWord(text, u"Alt+")) {
      held.alt = true;
    } else {
      return held;
    }
  }
}

std::optional<KeyChord> parseKeyChord(std::u16string_view text) {
  KeyChord chord;
  chord.held = takeHeldKeys(text);
  const std::optional<int> key = keyByName(text);
  if (!key) return std::nullopt;
  chord.key = *key;
  return chord;
}
