#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/text_pattern.h"
#include "od/db/OdDbObjectId.h"

class HostSelectionSet;
class OdDbDatabase;
class OdDbEntity;

/// The texts that a search goes through: single-line and multi-line ones, and those of inserts, without those
/// on locked layers. They are the selected ones, or else all of the current space, in their order there.
std::vector<OdDbObjectId> texts_to_search(const OdDbDatabase& database, const HostSelectionSet& selected);

/// A search through texts, one match after the other.
class text_search {
 public:
  /// A match: the text and which of its matches.
  struct place {
    OdDbObjectId text;
    std::size_t match;
  };

  explicit text_search(std::vector<OdDbObjectId> texts) : m_texts(std::move(texts)) {}

  /// Looks for another pattern, from the beginning on. Throws what the pattern throws on a text, and keeps
  /// the one before.
  void setPattern(HostTextPattern pattern);

  std::size_t matchCount() const;  ///< of all texts
  std::size_t textCount() const;   ///< texts with a match
  /// Where the search stands; nothing without a match.
  std::optional<place> current() const;
  /// Goes on to the next match. False when it began anew with the first.
  bool next();

  /// Replaces the current match, and stands on the one behind it.
  void replace(std::u16string_view replacement);
  /// Replaces all matches.
  void replaceAll(std::u16string_view replacement);

 private:
  void recount(std::size_t text);
  void skipTextsWithoutMatch();
  /// Stands on the next match from where the search is. False when that is the first again.
  bool settle();

  std::vector<OdDbObjectId> m_texts;
  std::vector<std::size_t> m_counts;  ///< matches of each
  std::optional<HostTextPattern> m_pattern;
  std::size_t m_text = 0;   ///< where the search stands
  std::size_t m_match = 0;  ///< in that text
};
