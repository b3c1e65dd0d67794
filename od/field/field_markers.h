#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "od/base/export.h"

/// "%<": begins a field, or a reference, in a text.
inline constexpr std::u16string_view kOdMarkerBegin = u"%<";
/// ">%": ends it.
inline constexpr std::u16string_view kOdMarkerEnd = u">%";

/// Name of the references to the children of a field, by their place.
inline constexpr std::u16string_view kOdChildReference = u"\\_FldIdx";
/// Name of the references to objects of the drawing, by their handle.
inline constexpr std::u16string_view kOdObjectReference = u"\\_ObjId";

/// A reference `%<\_name number>%` in the code of a field.
struct OdFieldReference {
  std::size_t begin = 0;     ///< of the marker
  std::size_t end = 0;       ///< behind the marker
  std::uint64_t number = 0;  ///< what is referred to

  /// The whole marker, in the code that was searched.
  std::u16string_view in(std::u16string_view code) const { return code.substr(begin, end - begin); }
};

/// The first reference of that name (`\_FldIdx`, `\_ObjIdx`, `\_ObjId`) in `code` from `from` on. One whose
/// number cannot be read is none.
SCRIBE_EXPORT std::optional<OdFieldReference> odFindReference(std::u16string_view code,
                                                              std::u16string_view name, std::size_t from = 0);

/// A stretch of a code, and the reference behind it.
struct OdCodePiece {
  std::u16string_view text;                   ///< without references; may be empty
  std::optional<OdFieldReference> reference;  ///< nothing behind the last stretch
};

/// A code, cut at its references of that name. There is always a last stretch, be it empty. The pieces look
/// into `code`.
SCRIBE_EXPORT std::vector<OdCodePiece> odSplitAtReferences(std::u16string_view code,
                                                           std::u16string_view name);

/// Such a reference as it is written.
SCRIBE_EXPORT std::u16string odFieldReference(std::u16string_view name, std::uint64_t number);

/// `code` between the two markers of a field.
SCRIBE_EXPORT std::u16string odWithMarkers(std::u16string_view code);

/// What stands between the markers that `code` begins and ends with; a code without both as it is. Looks into
/// `code`.
SCRIBE_EXPORT std::u16string_view odWithoutMarkers(std::u16string_view code);
