#include "tests/editor/random_keys.h"

#include <iterator>

namespace {

// No percent sign: "%%d" is a code, and reads back as the sign that it stands for.
constexpr const char* kCharacters[] = {"a", "b", "W",  "i", "l", "1", "2", ".", "1",     ".",  ",",
                                       "(", ")", "\\", "{", "}", ";", "P", "é", "Space", "Tab"};

constexpr const char* kEdits[] = {"Backspace", "Delete", "Enter", "x", "y", "Space", "."};

constexpr const char* kOthers[] = {"Left",
                                   "Right",
                                   "Up",
                                   "Down",
                                   "Home",
                                   "End",
                                   "Left*3",
                                   "Right*3",
                                   "PageUp",
                                   "PageDown",
                                   "Shift+Left",
                                   "Shift+Right",
                                   "Shift+Up",
                                   "Shift+Down",
                                   "Shift+Home",
                                   "Shift+End",
                                   "Shift+PageUp",
                                   "Shift+PageDown",
                                   "Ctrl+Left",
                                   "Ctrl+Right",
                                   "Ctrl+Alt+Up",
                                   "Ctrl+Alt+Up",
                                   "Ctrl+Alt+Down",
                                   "Ctrl+Shift+Left",
                                   "Enter",
                                   "Enter",
                                   "Shift+Enter",
                                   "Backspace",
                                   "Backspace*2",
                                   "Backspace",
                                   "Ctrl+Backspace",
                                   "Delete",
                                   "Delete*2",
                                   "Shift+Delete",
                                   "Shift+Tab",
                                   "Tab",
                                   "Ctrl+c",
                                   "Ctrl+v",
                                   "Ctrl+x",
                                   "Ctrl+t",
                                   "Ctrl+Insert",
                                   "Shift+Insert",
                                   "Ctrl+z",
                                   "Ctrl+z",
                                   "Ctrl+y",
                                   "Esc",
                                   "v",
                                   "Space*2",
                                   "b*3",
                                   "Ctrl+Shift+Right",
                                   "Ctrl+Shift+Space"};

/// The last one opens a list item.
constexpr const char* kSigns[] = {"a", "b", "c", "W", " ", " ", "¶", "¶", "→", "↵", "½", "~", "¶1.→"};

}  // namespace

std::string random_keys::key() {
  if (below(2) == 0) return kCharacters[below(std::size(kCharacters))];
  // Ctrl+A comes seldom: what follows it mostly erases all.
  if (below(200) == 0) return "Ctrl+a";
  return kOthers[below(std::size(kOthers))];
}

std::string random_keys::edit() { return kEdits[below(std::size(kEdits))]; }

std::string random_keys::text(std::size_t most, bool with_items) {
  std::string text;
  for (std::size_t i = below(most + 1); i > 0; --i)
    text += kSigns[below(with_items ? std::size(kSigns) : std::size(kSigns) - 1)];
  return text;
}
