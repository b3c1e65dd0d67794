#include "mtext/surrogate_pair.h"

#include <gtest/gtest.h>

#include "mtext/to_geom.h"
#include "tests/mtext/stub_finder.h"

using namespace mtext;

namespace {

geom_multitext typed(std::u16string_view text) {
  return to_geom(text, {.height = 1, .height_kind = 0}, 1, stub_finder());
}

}  // namespace

TEST(SurrogatePair, lies_between_a_high_and_a_low_half_alone) {
  const geom_multitext text = typed(u"a\U0001F600b");
  for (std::size_t at = 0; at < 7; ++at) EXPECT_EQ(splits_pair(text.parts, at), at == 2) << at;
  const geom_multitext halves = typed(std::u16string{0xDE00, 0xD83D, 0xD83D, u'x', 0xDE00});
  for (std::size_t at = 0; at < 7; ++at) EXPECT_FALSE(splits_pair(halves.parts, at)) << at;
}

TEST(SurrogatePair, measures_at_its_first_half_and_the_second_has_no_width) {
  const geom_multitext text = typed(u"\U0001F600\U00020000");
  const string_metrics whole = stub_finder().measure({.height = 1, .height_kind = 0}, u"\U0001F600");
  for (const std::size_t at : {0U, 2U}) {
    EXPECT_EQ(text.parts[at].size.advance, whole.advance);
    EXPECT_EQ(text.parts[at + 1].size.advance, 0);
    EXPECT_EQ(text.parts[at + 1].size.above, whole.above);
    EXPECT_EQ(text.parts[at + 1].size.right_bearing, whole.right_bearing);
  }
}

TEST(SurrogatePair, measures_as_one_wherever_its_halves_come_from) {
  multitext text;
  text.parts.push_back(new string({.height = 2, .height_kind = 0}, std::u16string{u'a', 0xD83D}));
  text.parts.push_back(new string({.height = 1, .height_kind = 0}, std::u16string{0xDE00, u'b'}));
  const geom_multitext laid = to_geom(text, 1, stub_finder());
  EXPECT_EQ(laid.parts[1].size.advance,
            stub_finder().measure({.height = 2, .height_kind = 0}, u"\U0001F600").advance);
  EXPECT_EQ(laid.parts[2].size.advance, 0);
}

TEST(SurrogatePair, a_half_alone_measures_as_itself) {
  const geom_multitext text = typed(std::u16string{0xD83D, u'x'});
  EXPECT_GT(text.parts[0].size.advance, 0);
  geom_parts parts = text.parts;
  measure_pair(parts, 1, stub_finder());
  EXPECT_EQ(parts[0].size.advance, text.parts[0].size.advance);
}
