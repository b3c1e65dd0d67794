#pragma once

#include <cstddef>
#include <vector>

#include "od/base/export.h"

/// Finds where a field ends. Markers nest: the field that begins at "%<" ends at the ">%" that closes it.
/// A search that fails has seen the whole rest of the input, and keeps the end of every field in it: many
/// fields without an end are searched once, not once each.
class SCRIBE_EXPORT OdNestedMarkers {
 public:
  /// The first character of the ">%" that closes the "%<" at `start`, or null when `last` comes first.
  /// Calls come with rising `start` and one `last`.
  const char16_t* endOf(const char16_t* start, const char16_t* last);

 private:
  struct Marker {
    const char16_t* start;
    /// Null as long as nothing closed it.
    const char16_t* end;
  };

  const char16_t* search(const char16_t* start, const char16_t* last);

  /// What the failed search saw, in text order; empty before it.
  std::vector<Marker> m_known;
};
