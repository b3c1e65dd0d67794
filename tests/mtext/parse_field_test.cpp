#include <gtest/gtest.h>

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
