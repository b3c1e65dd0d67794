#include "od/field/nested_markers.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

/// The rule told plainly: from each start on its own.
const char16_t* plain_end_of(const char16_t* at, const char16_t* last) {
  int depth = 0;
  for (at += 2; last - at >= 2; ++at) {
    bool opens = at[0] == u'%' && at[1] == u'<';
    bool closes = at[0] == u'>' && at[1] == u'%';
    if (closes && depth == 0) return at;
    if (opens || closes) {
      depth += opens ? 1 : -1;
      ++at;
    }
  }
  return nullptr;
}

}  // namespace

TEST(NestedMarkers, remembered_ends_are_those_of_a_search_from_each_start) {
  std::mt19937 random(20240229);
  for (int round = 0; round < 20000; ++round) {
    std::u16string text;
    for (auto length = random() % 24; length > 0; --length) text += u"%<>a"[random() % 4];
    OdNestedMarkers markers;
    for (std::size_t at = 0; (at = text.find(u"%<", at)) != text.npos; ++at) {
      const char16_t* last = text.data() + text.size();
      ASSERT_EQ(markers.endOf(text.data() + at, last), plain_end_of(text.data() + at, last)) << at;
    }
  }
}
