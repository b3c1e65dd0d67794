#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "od/base/export.h"

/// "%<": begins a field, or a reference, in a text.
inline constexpr std::u16string_view kOdMarkerBegin = u"%<";
/// ">%": ends it.
inline constexpr std::u16string_view kOdMarkerEnd = u">%";

/// A reference `%<\_name number>%` in the code of a field.
struct OdFieldReference {
  std::size_t begin = 0;     ///< of the marker
  std::size_t end = 0;       ///< behind the marker
  std::uint64_t number = 0;  ///< what is referred to
};

/// The first reference of that name (`\_FldIdx`, `\_ObjIdx`, `\_ObjId`) in `code` from `from` on. One whose
/// number cannot be read is none.
SCRIBE_EXPORT std::optional<OdFieldReference> odFindReference(std::u16string_view code,
                                                              std::u16string_view name, std::size_t from = 0);

/// Such a reference as it is written.
SCRIBE_EXPORT std::u16string odFieldReference(std::u16string_view name, std::uint64_t number);

/// `code` between the two markers of a field.
SCRIBE_EXPORT std::u16string odWithMarkers(std::u16string_view code);
