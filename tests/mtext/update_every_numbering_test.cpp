#include <gtest/gtest.h>

#include "mtext/to_geom.h"
#include "tests/mtext/generated_text.h"
#include "tests/mtext/labelled.h"

/// The law of the quick ways: they end where the slow ones do, in any text with any marks.
namespace mtext {
namespace {

using places_of_marks = std::vector<std::pair<std::size_t, std::size_t>>;

places_of_marks ranges_of(const geom_multitext& text) {
  places_of_marks found;
  for (const marks::mark& each : text.marks) found.push_back({each.begin, each.end});
  return found;
}

/// Up to six ranges that ascend in a text of `size` parts; many touch the one before.
std::vector<marks::replaced_range> replaced_ranges(text_generator& generator, std::size_t size) {
  std::vector<marks::replaced_range> made;
  std::size_t position = 0;
  for (std::size_t i = generator.below(7); i > 0; --i) {
    const std::size_t first = position + generator.below(2) * generator.below(size - position + 1);
    const std::size_t count = generator.below(std::min<std::size_t>(size - first, 4) + 1);
    made.push_back({first, count, generator.below(4)});
    position = first + count;
  }
  return made;
}

/// `count` letters: different ones at different times.
geom_multitext letters(std::size_t count, char16_t first) {
  std::u16string text;
  for (std::size_t i = 0; i < count; ++i) text += static_cast<char16_t>(first + i);
  return to_geom(text, {}, 10, stub_finder());
}

TEST(ReplaceParts, equals_erasing_and_inserting_one_range_after_the_other) {
  text_generator generator(20241121);
  for (int round = 0; round < 3000; ++round) {
    geom_multitext together = generator.text(8);
    const std::size_t size = together.parts.size();
    for (std::size_t i = generator.below(8); i > 0; --i) together.marks.push_back(generator.mark(size));
    geom_multitext apart = together;
    geom_multitext fresh;
    std::size_t moved = 0;
    char16_t letter = u'A';
    const auto ranges = replaced_ranges(generator, size);
    for (const marks::replaced_range& each : ranges) {
      apart.erase(each.first + moved, each.count, /*drop_empty=*/false);
      apart.insert(each.first + moved, letters(each.new_count, letter));
      fresh.append(letters(each.new_count, letter++));
      moved += each.new_count - each.count;
    }
    together.replace(ranges, fresh.parts);
    ASSERT_TRUE(fresh.parts.empty());
    ASSERT_EQ(drawn(together), drawn(apart)) << "round " << round;
    ASSERT_EQ(ranges_of(together), ranges_of(apart)) << "round " << round;
  }
}

TEST(ReplaceParts, ranges_that_do_not_ascend_or_fit_are_refused_and_nothing_changes) {
  geom_multitext text = decoded(u"abc");
  geom_multitext fresh = decoded(u"xy");
  const std::vector<std::vector<marks::replaced_range>> wrong{{{1, 2, 1}, {2, 1, 1}},
                                                              {{2, 1, 1}, {0, 1, 1}},
                                                              {{0, 1, 1}, {2, 2, 1}},
                                                              {{0, 1, 1}, {4, 0, 1}},
                                                              {{0, 1, 1}},
                                                              {{0, 1, 3}},
                                                              {{0, 1, 3}, {1, 1, geom_multitext::to_end}},
                                                              {{0, 1, 1}, {2, geom_multitext::to_end, 1}}};
  for (const auto& ranges : wrong) {
    try {
      text.replace(ranges, fresh.parts);
      FAIL() << "nothing was thrown";
    } catch (const std::invalid_argument& error) {
      EXPECT_STREQ(error.what(), "geom_multitext::replace: invalid positions");
    }
    EXPECT_EQ(drawn(text), "abc");
    EXPECT_EQ(drawn(fresh), "xy");
  }
}

/// A text whose labels are marked, with other marks anywhere in it.
geom_multitext listed(text_generator& generator) {
  static const char16_t* const labels[] = {u"1.\t",   u"9.\t",    u"c.\t", u"\u00b7\t",
                                           u"1.1.\t", u"99.B.\t", u""};
  std::u16string codes;
  for (std::size_t i = generator.below(9); i > 0; --i) {
    codes += labels[generator.below(std::size(labels))] + generator.codes(2) + u"\\P";
  }
  geom_multitext text = labelled(codes);
  for (std::size_t i = generator.below(6); i > 0; --i)
    text.marks.push_back(generator.mark(text.parts.size()));
  return text;
}

TEST(UpdateEveryNumbering, equals_updating_one_label_after_the_other) {
  text_generator generator(42);
  for (int round = 0; round < 3000; ++round) {
    geom_multitext apart = listed(generator);
    geom_multitext together = apart;
    renumber(apart);
    marks::update_numberings(together.marks, marks::default_letters());
    update_every_numbering(together, stub_finder(), marks::default_letters());
    ASSERT_EQ(drawn(together), drawn(apart)) << "round " << round;
    ASSERT_EQ(ranges_of(together), ranges_of(apart)) << "round " << round;
  }
}

TEST(UpdateEveryNumbering, labels_that_touch_end_where_they_do_one_after_the_other) {
  geom_multitext apart = decoded(u"abcdef");
  for (std::size_t i = 0; i < 6; i += 2)
    apart.marks.push_back(new marks::numbering(i, i + 2, {{i + 1, 0, 0}}));
  for (std::size_t i = 0; i <= 6; ++i) apart.marks.push_back(new marks::selection(i));
  geom_multitext together = apart;
  for (marks::numbering* each : labels_of(apart)) {
    update_numbering(apart, *each, stub_finder(), marks::default_letters());
  }
  update_every_numbering(together, stub_finder(), marks::default_letters());
  EXPECT_EQ(drawn(together), "1.>3.>5.>");
  EXPECT_EQ(ranges_of(together), ranges_of(apart));
}

}  // namespace
}  // namespace mtext
