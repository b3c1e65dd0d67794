#include "desk/script/key_character.h"

#include "desk/script/key_names.h"

namespace {

constexpr char16_t kFirstMark = 33;
constexpr char16_t kLastMark = 126;

std::optional<char16_t> controlCode(int key) {
  if (key >= 'A' && key <= 'Z') return static_cast<char16_t>(key - 'A' + 1);
  if (key == 13) return u'\n';
  if (key == 8) return u'\x7f';
  if (key == 27) return u'\x1b';
  if (key == 32) return u' ';
  return std::nullopt;
}

std::optional<char16_t> markOfKey(const KeyOfCharacter& wanted) {
  for (char16_t mark = kFirstMark; mark <= kLastMark; ++mark)
    if (keyOfCharacter(mark) == wanted) return mark;
  return std::nullopt;
}

}  // namespace

std::optional<char16_t> characterOfChord(const KeyChord& chord) {
  if (chord.held.alt) return std::nullopt;
  if (chord.held.ctrl) return controlCode(chord.key);
  if (chord.key == 8 || chord.key == 9 || chord.key == 13 || chord.key == 27 || chord.key == 32)
    return static_cast<char16_t>(chord.key);
  return markOfKey({chord.key, chord.held.shift});
}
