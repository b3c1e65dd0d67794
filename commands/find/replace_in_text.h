#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "host/text_pattern.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

// Finding and replacing in what texts show. A match may run across formats and codes; one that a field, a
// stacked fraction or a line end stands in is none.

/// How often a pattern stands in a text.
std::size_t count_matches(const OdDbMText& text, const HostTextPattern& pattern);
std::size_t count_matches(const OdDbText& text, const HostTextPattern& pattern);

/// Replaces all matches, or the one of the number `only` counted from 0, and returns how many were replaced.
/// What is written takes the format of the first character that it replaces; codes, fields and fractions
/// stay, and a text without a match stays as it is. Throws what `HostTextPattern::matches` throws, with
/// nothing changed.
std::size_t replace_in(OdDbMText& text, const HostTextPattern& pattern, std::u16string_view replacement,
                       std::optional<std::size_t> only = {});
std::size_t replace_in(OdDbText& text, const HostTextPattern& pattern, std::u16string_view replacement,
                       std::optional<std::size_t> only = {});
