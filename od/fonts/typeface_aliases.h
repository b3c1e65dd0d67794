#pragma once

#include <string_view>
#include <vector>

/// The typefaces that stand in for a well-known one, best first, those of the same widths before those that
/// merely look alike; empty for a name that the table does not know. Case does not matter.
std::vector<std::u16string_view> odTypefaceAliases(std::u16string_view family);

/// What a typeface's file name says: which family and which face of it.
struct OdTypefaceOfFile {
  std::u16string_view family{};
  bool bold = false;
  bool italic = false;
};

/// The typeface of a well-known file such as `arialbd.ttf`; an empty family for others. Case does not matter.
OdTypefaceOfFile odTypefaceOfFile(std::u16string_view fileName);
