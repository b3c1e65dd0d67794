#include "commands/find/shown_matches.h"

using Matches = std::vector<HostTextPattern::Match>;

Matches shown_matches(const HostTextPattern& pattern, std::u16string_view shown,
                      std::optional<std::u16string_view> replacement) {
  static constexpr char16_t kBounds[] = {kNoCharacter, u'\n', 0};
  Matches matches = pattern.matches(shown, replacement);
  std::erase_if(matches, [shown](const HostTextPattern::Match& match) {
    return shown.substr(match.first, match.last - match.first).find_first_of(kBounds) != shown.npos;
  });
  return matches;
}

Matches chosen(Matches matches, std::optional<std::size_t> only) {
  if (!only) return matches;
  if (*only >= matches.size()) return {};
  return {matches[*only]};
}
