#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

/// Finds where a field ends. Markers nest: the field that begins at "%<" ends at the ">%" that closes it.
/// A search that fails has seen the whole rest of the input, and keeps the end of every field in it: many
/// fields without an end are searched once, not once each.
class OdNestedMarkers {
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

inline const char16_t* OdNestedMarkers::endOf(const char16_t* start, const char16_t* last) {
  if (m_known.empty()) return search(start, last);
  auto before = [](const Marker& known, const char16_t* at) { return known.start < at; };
  auto found = std::lower_bound(m_known.begin(), m_known.end(), start, before);
  return found != m_known.end() && found->start == start ? found->end : nullptr;
}

inline const char16_t* OdNestedMarkers::search(const char16_t* start, const char16_t* last) {
  // Of each "%<" seen: the index of the marker whose end is its own end. The `%` of ">%<" can be both the
  // last of an end and the first of a field. Within a field it is the former; read from there as a field, it
  // shares the end of the field around it, since from its third character on both readings see the same
  // markers.
  std::vector<Marker> seen{{start, nullptr}};
  std::vector<std::size_t> endsWith{0};
  std::vector<std::size_t> open{0};
  const char16_t* at = start + 2;
  const auto isAt = [&](char16_t a, char16_t b) { return last - at >= 2 && at[0] == a && at[1] == b; };
  while (at != last) {
    if (isAt(u'%', u'<')) {
      open.push_back(seen.size());
      endsWith.push_back(seen.size());
      seen.push_back({at, nullptr});
      at += 2;
    } else if (isAt(u'>', u'%')) {
      seen[open.back()].end = at;
      open.pop_back();
      if (open.empty()) return at;
      ++at;
      if (isAt(u'%', u'<')) {
        endsWith.push_back(open.back());
        seen.push_back({at, nullptr});
      }
      ++at;
    } else {
      ++at;
    }
  }
  for (std::size_t i = 0; i < seen.size(); ++i) seen[i].end = seen[endsWith[i]].end;
  m_known = std::move(seen);
  return nullptr;
}
