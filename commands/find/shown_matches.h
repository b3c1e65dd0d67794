#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/text_pattern.h"

/// Stands in what a text shows for something that is no character, such as a field or a fraction.
inline constexpr char16_t kNoCharacter = u'\uFFFC';

/// The matches in what a text shows, but those that go across the end of a line or something that is no
/// character.
std::vector<HostTextPattern::Match> shown_matches(const HostTextPattern& pattern, std::u16string_view shown,
                                                  std::optional<std::u16string_view> replacement = {});

/// All matches, or the one of the number `only`.
std::vector<HostTextPattern::Match> chosen(std::vector<HostTextPattern::Match> matches,
                                           std::optional<std::size_t> only);
