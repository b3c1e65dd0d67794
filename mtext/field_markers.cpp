#include "mtext/field_markers.h"

#include <algorithm>
#include <cstddef>

#include "mtext/text_cursor.h"

namespace mtext::reading {

const char16_t* field_markers::end_of(const char16_t* start, const char16_t* last) {
  if (m_known.empty()) return search(start, last);
  auto before = [](const marker& known, const char16_t* at) { return known.start < at; };
  auto found = std::lower_bound(m_known.begin(), m_known.end(), start, before);
  return found != m_known.end() && found->start == start ? found->end : nullptr;
}

const char16_t* field_markers::search(const char16_t* start, const char16_t* last) {
  // Of each "%<" seen: the index of the marker whose end is its own end. The `%` of ">%<" can be both the
  // last of an end and the first of a field. Within a field it is the former; read from there as a field, it
  // shares the end of the field around it, since from its third character on both readings see the same
  // markers.
  std::vector<marker> seen{{start, nullptr}};
  std::vector<std::size_t> ends_with{0};
  std::vector<std::size_t> open{0};
  text_cursor cursor{start + 2, last};
  while (!cursor.ended()) {
    if (cursor.is_at(u'%', u'<')) {
      open.push_back(seen.size());
      ends_with.push_back(seen.size());
      seen.push_back({cursor.at, nullptr});
      cursor.at += 2;
    } else if (cursor.is_at(u'>', u'%')) {
      seen[open.back()].end = cursor.at;
      open.pop_back();
      if (open.empty()) return cursor.at;
      ++cursor.at;
      if (cursor.is_at(u'%', u'<')) {
        ends_with.push_back(open.back());
        seen.push_back({cursor.at, nullptr});
      }
      ++cursor.at;
    } else {
      ++cursor.at;
    }
  }
  for (std::size_t i = 0; i < seen.size(); ++i) seen[i].end = seen[ends_with[i]].end;
  m_known = std::move(seen);
  return nullptr;
}

}  // namespace mtext::reading
