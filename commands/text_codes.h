#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

// The codes of texts that commands change without a session. Fields stand in them as markers.

/// What a text consists of. Where it has fields, each stands as the marker "%<\_FldIdx n>%".
std::u16string codes_of(const OdDbMText& text);
std::u16string codes_of(const OdDbText& text);

/// Gives a text other codes. The fields whose markers stand in them stay what they are. A text that is
/// justified stays on its point.
void set_codes(OdDbMText& text, const std::u16string& codes);
void set_codes(OdDbText& text, const std::u16string& codes);

/// A marker in the codes of a single-line text, in UTF-16 units.
struct marker_range {
  std::size_t first;
  std::size_t last;  ///< behind the marker
};

/// The markers of fields in what `codes_of` gave, from first to last.
std::vector<marker_range> field_marker_ranges(std::u16string_view codes);
