#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The keywords of one prompt, numbered from 0.
class HostKeywordList {
 public:
  /// Words with blanks between. The capitals of a word are its abbreviation; a star before it hides it; a
  /// no-break space in it is a blank of the word. Behind a single "_" the names follow that the same words
  /// have in every language.
  explicit HostKeywordList(std::u16string_view words);

  /// The number of the keyword that was typed: the whole word, a beginning that holds all its capitals, or
  /// the capitals alone, in any case. Of several the first. Behind a "_" the names of every language count.
  std::optional<int> find(std::u16string_view typed) const;
  /// "Yes/No" of those that are not hidden.
  std::u16string shown() const;
  bool isEmpty() const { return m_words.empty(); }
  std::size_t size() const { return m_words.size(); }
  /// The name in the user's language. Throws `std::out_of_range`.
  const std::u16string& name(std::size_t index) const { return m_words.at(index).text; }
  /// The name in every language; the user's own where the list has no other. Throws `std::out_of_range`.
  const std::u16string& globalName(std::size_t index) const;

 private:
  struct Word {
    std::u16string text;
    bool hidden;
  };
  static std::vector<Word> read(std::u16string_view words);
  static std::optional<int> find(const std::vector<Word>& words, std::u16string_view typed);

  std::vector<Word> m_words;
  std::vector<Word> m_globals;
};
