#include <gtest/gtest.h>

#include <random>

#include "mtext/field_markers.h"
#include "mtext/parse.h"
#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::outline;
using mtext_test::outline_of;

namespace {

OdDbFieldPtr evaluating_to(const char16_t* text) {
  OdDbFieldPtr object(new OdDbField(u"", u""), kOdRxObjAttach);
  object->setEvaluatedText(text);
  return object;
}

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

TEST(ParseField, the_code_stands_between_the_markers) {
  EXPECT_EQ(outline_of(u"a%<\\_FldIdx 0>%b"), "[a] %\\_FldIdx 0% [b]");
}

TEST(ParseField, markers_nest_and_the_code_is_kept_exactly) {
  EXPECT_EQ(outline_of(u"%<a%<b>%c>%"), "%a%<b>%c%");
  EXPECT_EQ(outline_of(u"%<\\{%%d >%"), "%\\{%%d %");
}

TEST(ParseField, without_its_end_it_is_text) {
  EXPECT_EQ(outline_of(u"%<abc"), "[%<abc]");
  EXPECT_EQ(outline_of(u"%<"), "[%<]");
}

TEST(ParseField, one_without_end_may_hold_one_with_end) {
  EXPECT_EQ(outline_of(u"%<a%<b>%c"), "[%<a] %b% [c]");
}

TEST(ParseField, a_bound_object_gives_its_evaluated_text) {
  multitext text;
  parse(u"%<date>% %<name>%", format::string(), text, {{u"%<date>%", evaluating_to(u"today")}});

  EXPECT_EQ(outline(text), "%date=today% _1 %name%");
}

TEST(FieldMarkers, remembered_ends_are_those_of_a_search_from_each_start) {
  std::mt19937 random(20240229);
  for (int round = 0; round < 20000; ++round) {
    std::u16string text;
    for (auto length = random() % 24; length > 0; --length) text += u"%<>a"[random() % 4];
    reading::field_markers markers;
    for (std::size_t at = 0; (at = text.find(u"%<", at)) != text.npos; ++at) {
      const char16_t* last = text.data() + text.size();
      ASSERT_EQ(markers.end_of(text.data() + at, last), plain_end_of(text.data() + at, last)) << at;
    }
  }
}
