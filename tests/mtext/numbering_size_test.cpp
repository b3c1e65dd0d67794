#include <gtest/gtest.h>

#include <ctime>

#include "mtext/numbering_prefix.h"
#include "mtext/to_geom.h"
#include "tests/mtext/labelled.h"
#include "tests/mtext/small_stack.h"

/// Attacks by size on lists: what grows with the square of the text would not end here.
namespace mtext {
namespace {

/// Far above what n log n takes on a slow machine with sanitizers, far below what n squared takes.
constexpr double enough_seconds = 20;

/// Seconds of the processor that `action` takes, whatever else the machine does.
template <class Action>
double seconds_of(Action action) {
  const std::clock_t begin = std::clock();
  action();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

std::u16string repeated(std::u16string_view piece, std::size_t count) {
  std::u16string text;
  for (; count > 0; --count) text += piece;
  return text;
}

/// The levels of a label of `text`; 0 if it is none.
std::size_t level_count(const std::u16string& text) {
  const auto read = read_label(text, marks::default_letters());
  return read ? read->size() : 0;
}

TEST(ListSize, a_hundred_thousand_items_are_marked_counted_and_written) {
  geom_multitext text;
  multitext item;
  item.parts.push_back(new string({}, u"1."));
  item.parts.push_back(new tab({}));
  item.parts.push_back(new new_paragraph({}, {}, false));
  for (std::size_t i = 0; i < 100'000; ++i) text.append(to_geom(item, 10, stub_finder()));
  for (std::size_t i = 0; i < 100'000; ++i) text.marks.push_back(new marks::selection(4 * i + 1));
  const double seconds = seconds_of([&] {
    mark_numberings(text, marks::default_letters());
    marks::update_numberings(text.marks, marks::default_letters());
    update_every_numbering(text, stub_finder(), marks::default_letters());
    for (marks::numbering* each : labels_of(text)) clean_numbering_format(text, *each);
  });
  EXPECT_LT(seconds, enough_seconds);
  const marks::numbering& last = *labels_of(text).back();
  EXPECT_EQ(drawn(text, last.begin, last.end), "100000.>");
  EXPECT_EQ(text.marks[99'999].begin, last.end);  // a caret in a label goes behind it
}

TEST(ListSize, a_label_of_a_million_levels_is_read_and_written) {
  mtext_test::on_small_stack([] {
    geom_multitext text =
        to_geom(std::u16string(1'000'000, bullet_character) + u"\tx", {}, 10, stub_finder());
    EXPECT_LT(seconds_of([&] {
                mark_numberings(text, marks::default_letters());
                marks::update_numberings(text.marks, marks::default_letters());
                update_every_numbering(text, stub_finder(), marks::default_letters());
              }),
              enough_seconds);
    EXPECT_EQ(labels_of(text)[0]->indices.size(), 1'000'000u);
    EXPECT_EQ(text.parts.size(), 1'000'002u);
  });
}

TEST(ListSize, a_million_letters_or_digits_are_one_level_or_none) {
  EXPECT_LT(seconds_of([] {
              EXPECT_EQ(level_count(repeated(u"a", 1'000'000) + u"."), 1u);
              EXPECT_EQ(level_count(repeated(u"a", 1'000'000)), 0u);
              EXPECT_EQ(level_count(repeated(u"9", 1'000'000) + u"."), 0u);
              EXPECT_EQ(level_count(repeated(u"0", 1'000'000) + u"1."), 1u);
              EXPECT_EQ(level_count(repeated(u" ", 1'000'000) + u"1."), 1u);
            }),
            enough_seconds);
}

TEST(ListSize, half_a_million_lettered_levels) {
  EXPECT_LT(seconds_of([] { EXPECT_EQ(level_count(repeated(u"a.", 500'000)), 500'000u); }), enough_seconds);
}

TEST(ListSize, going_down_a_thousand_levels_and_up_again) {
  geom_multitext text = labelled(u"1.\tx");
  marks::numbering& label = *labels_of(text)[0];
  for (const bool deeper : {true, false}) {
    for (int i = 0; i < 1000; ++i) {
      indent_numbering(text, label, text.format, stub_finder(), deeper, marks::default_letters());
    }
  }
  EXPECT_EQ(drawn(text), "2.>x");
  EXPECT_EQ(text.format.left, 0.0);
}

}  // namespace
}  // namespace mtext
