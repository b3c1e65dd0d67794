#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The keywords of one prompt, numbered from 0.
class HostKeywordList {
 public:
  /// Words with blanks between. The capitals of a word are its abbreviation; a star before it hides it.
  explicit HostKeywordList(std::u16string_view words);

  /// The number of the keyword that was typed: the whole word, a beginning that holds all its capitals, or
  /// the capitals alone, in any case. Of several the first.
  std::optional<int> find(std::u16string_view typed) const;
  /// "Yes/No" of those that are not hidden.
  std::u16string shown() const;
  bool isEmpty() const { return m_words.empty(); }

 private:
  struct Word {
    std::u16string text;
    bool hidden;
  };
  std::vector<Word> m_words;
};
