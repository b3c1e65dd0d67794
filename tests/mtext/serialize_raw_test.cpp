#include <gtest/gtest.h>

#include "mtext/serialize.h"
#include "tests/mtext/outline.h"

using namespace mtext;
using mtext_test::read;

namespace {

struct unknown_part : tab {
  unknown_part() : tab(format::string()) {}
  std::uint32_t type() const override { return 7; }
};

}  // namespace

TEST(SerializeRaw, writes_the_text_without_any_formatting) {
  auto text = read(u"{\\C1;a}  b\tc\nd\\Pe\\S1#2;%<code>%");

  EXPECT_EQ(serialize_raw(text, false), u"a b\tc\r\nd\r\ne1#2%<code>%");
}

TEST(SerializeRaw, tildes_stand_for_the_blanks_of_words_only) {
  EXPECT_EQ(serialize_raw(read(u"a\\~\\{b c"), true), u"a\\~{b c");
  EXPECT_EQ(serialize_raw(read(u"a\\~\\{b c"), false), u"a {b c");
}

TEST(SerializeRaw, ends_at_a_part_of_an_unknown_type_with_false) {
  multitext text;
  text.parts.push_back(new string({}, u"a"));
  text.parts.push_back(new unknown_part());
  text.parts.push_back(new string({}, u"b"));
  std::u16string out;

  EXPECT_FALSE(serialize_raw(out, text, false));
  EXPECT_EQ(out, u"a");
}
