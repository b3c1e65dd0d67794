#pragma once

#include <random>
#include <string>

/// Keys and texts at random, in the notation of `edited_text`, the same ones in every run.
class random_keys {
 public:
  explicit random_keys(unsigned seed) : m_random(seed) {}

  /// A number below `limit`.
  std::size_t below(std::size_t limit) { return m_random() % limit; }

  /// Any key: characters mostly, moves, deletions, selecting, lists, columns, clipboard, undo and redo.
  std::string key();
  /// A key that types, deletes or ends a paragraph.
  std::string edit();
  /// A text of up to `most` signs with stacks, blanks and maybe list items, without carets.
  std::string text(std::size_t most, bool with_items = true);

 private:
  std::mt19937 m_random;
};
