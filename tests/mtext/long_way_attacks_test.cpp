#include <gtest/gtest.h>

#include <ctime>

#include "mtext/decode.h"
#include "mtext/dispose.h"
#include "tests/mtext/decoded.h"
#include "tests/mtext/small_stack.h"

/// Attacks by depth and size that go the whole way: read, measured, laid out at every width, written. What is
/// not linear, or takes stack, does not come back from here.
namespace mtext {
namespace {

constexpr std::size_t million = 1'000'000;
constexpr double widths[] = {0, 1e-300, 1e300, -1, -1e300, 1000};

std::u16string repeated(std::u16string_view piece, std::size_t count) {
  std::u16string text;
  text.reserve(piece.size() * count);
  for (; count > 0; --count) text += piece;
  return text;
}

/// `text` laid out at every width in turn; every part must be in a line, and every line in a column.
geom_multitext laid_out(const std::u16string& text) {
  geom_multitext result = decode(text, {}, frame(widths[0]), stub_finder(), {});
  for (double width : widths) {
    result.info = frame(width);
    dispose(result);
    EXPECT_EQ(result.lines.back().last, result.parts.size()) << "width " << width;
    EXPECT_EQ(result.columns.back().last, result.parts.size()) << "width " << width;
  }
  return result;
}

std::u16string written(const geom_multitext& text) {
  return encode(text, {.height = text.info.height, .height_kind = 0}, text.info.height);
}

/// Processor time that `action` takes, which does not depend on what else the machine does.
template <class Action>
double effort_of(Action action) {
  const std::clock_t begin = std::clock();
  action();
  return static_cast<double>(std::clock() - begin);
}

}  // namespace

// Long strings are compared by EXPECT_TRUE, since a difference would print megabytes.

TEST(LongWayAttack, a_million_groups_within_each_other) {
  mtext_test::on_small_stack([] {
    const geom_multitext text = laid_out(repeated(u"{", million) + u"a" + repeated(u"}", million));
    EXPECT_EQ(text.parts.size(), 1u);
    EXPECT_EQ(written(text), u"a");
  });
}

TEST(LongWayAttack, a_million_fields_within_each_other) {
  mtext_test::on_small_stack([] {
    const std::u16string nested = repeated(u"%<", million) + repeated(u">%", million);
    const geom_multitext text = laid_out(nested);
    EXPECT_EQ(text.parts.size(), 4u);  // the dashes of a field without a value
    EXPECT_TRUE(written(text) == nested);
  });
}

TEST(LongWayAttack, a_million_fields_one_after_the_other) {
  mtext_test::on_small_stack([] {
    const std::u16string fields = repeated(u"%<a>%", million / 10);
    const geom_multitext text = laid_out(fields);
    EXPECT_EQ(text.marks.size(), million / 10);
    EXPECT_TRUE(written(text) == fields);
  });
}

TEST(LongWayAttack, a_million_characters_in_one_word) {
  mtext_test::on_small_stack([] {
    const std::u16string word(million, u'x');
    const geom_multitext text = laid_out(word);
    EXPECT_EQ(text.lines.size(), 1u);
    EXPECT_TRUE(written(text) == word);
  });
}

TEST(LongWayAttack, ten_million_characters_in_one_word_take_ten_times_as_long_as_a_million) {
  mtext_test::on_small_stack([] {
    geom_multitext text;
    const auto lays_out = [&](std::size_t size) {
      return effort_of(
          [&] { text = decode(std::u16string(size, u'x'), {}, frame(1000), stub_finder(), {}); });
    };
    const double million_takes = lays_out(million);
    const double ten_millions_take = lays_out(10 * million);
    EXPECT_EQ(text.parts.size(), 10 * million);
    EXPECT_LT(ten_millions_take, 50 * million_takes);  // a square would be 100 times as long
  });
}

TEST(LongWayAttack, a_million_paragraphs) {
  mtext_test::on_small_stack([] {
    const std::u16string paragraphs = repeated(u"\\P", million);
    const geom_multitext text = laid_out(paragraphs);
    EXPECT_EQ(text.lines.size(), million + 1);
    EXPECT_TRUE(written(text) == paragraphs);
  });
}

TEST(LongWayAttack, a_hundred_thousand_stops_over_a_hundred_thousand_tabs) {
  mtext_test::on_small_stack([] {
    const std::u16string code = u"\\pxt" + repeated(u"4,", 100'000) + u"8;";
    const geom_multitext text = laid_out(code + std::u16string(100'000, u'\t'));
    EXPECT_EQ(text.format.tabs.size(), 100'001u);
  });
}

/// Each paragraph has the stops of the first: as a list of their own they would take gigabytes.
TEST(LongWayAttack, a_hundred_thousand_stops_over_a_hundred_thousand_paragraphs) {
  mtext_test::on_small_stack([] {
    const std::u16string stops = repeated(u"8,4,", 50'000) + u"12;";
    const std::u16string paragraphs = repeated(u"\t\\P", 100'000);
    for (const auto* code : {u"\\pxt", u"\\pt"}) {
      const geom_multitext text = laid_out(code + stops + paragraphs);
      EXPECT_EQ(text.lines.size(), 100'001u);
      EXPECT_EQ(paragraph_at(text, text.parts.size()).tabs.size(), 100'001u);
      EXPECT_LT(written(text).size(), 2'000'000u);
    }
  });
}

}  // namespace mtext
