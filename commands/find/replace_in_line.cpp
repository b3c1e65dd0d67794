#include "commands/base/text_codes.h"
#include "commands/find/replace_in_text.h"
#include "commands/find/shown_matches.h"
#include "od/field/field_markers.h"
#include "od/gi/OdGiTextCharacter.h"

namespace {

/// A stretch of codes, in UTF-16 units: from `first` up to, not with, `last`.
struct code_range {
  std::size_t first;
  std::size_t last;
};

/// What a single-line text shows, and the codes that each unit of it comes from.
struct shown_line {
  std::u16string codes;
  std::u16string shown;
  std::vector<code_range> sources;  ///< one for each unit of `shown`

  explicit shown_line(const OdDbText& text) : codes(codes_of(text)) {
    std::size_t at = 0;
    for (const auto& [characters, field] : odSplitAtReferences(codes, kOdChildReference)) {
      add_characters(characters, at);
      if (!field) continue;
      add(kNoCharacter, {field->begin, field->end});
      at = field->end;
    }
  }

 private:
  void add(char16_t unit, code_range source) {
    shown += unit;
    sources.push_back(source);
  }

  void add_characters(std::u16string_view text, std::size_t first) {
    for (const OdGiTextCharacter& each : odReadTextCharacters(text, /*raw=*/false, kOdUsualCodePage)) {
      for (const char16_t unit : odToUtf16(each.character))
        add(unit, {first + each.first, first + each.last});
    }
  }
};

/// The codes between the characters of a match, which stay: they turn lines on and off.
std::u16string switches_in(const shown_line& line, const HostTextPattern::Match& match) {
  std::u16string switches;
  for (std::size_t i = match.first + 1; i < match.last; ++i) {
    const std::size_t end = line.sources[i - 1].last;
    if (end < line.sources[i].first) switches.append(line.codes, end, line.sources[i].first - end);
  }
  return switches;
}

}  // namespace

std::size_t count_matches(const OdDbText& text, const HostTextPattern& pattern) {
  return shown_matches(pattern, shown_line(text).shown).size();
}

std::size_t replace_in(OdDbText& text, const HostTextPattern& pattern, std::u16string_view replacement,
                       std::optional<std::size_t> only) {
  const shown_line line(text);
  const auto matches = chosen(shown_matches(pattern, line.shown, replacement), only);
  if (matches.empty()) return 0;
  std::u16string codes;
  std::size_t at = 0;
  for (const HostTextPattern::Match& match : matches) {
    codes.append(line.codes, at, line.sources[match.first].first - at);
    codes.append(match.replacement).append(switches_in(line, match));
    at = line.sources[match.last - 1].last;
  }
  set_codes(text, codes.append(line.codes, at));
  return matches.size();
}
