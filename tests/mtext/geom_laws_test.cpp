#include "tests/mtext/geom_laws.h"

#include <gtest/gtest.h>

#include "mtext/to_geom.h"

namespace mtext {
namespace {

constexpr int rounds = 500;

/// Every part measured and placed anew.
geom_multitext laid_out_from_scratch(const geom_multitext& text) {
  geom_multitext fresh(text);
  for (geom_part& each : fresh.parts) {
    each.size = string_metrics();
    each.x = each.y = 0;
    each.update(stub_finder());
  }
  dispose(fresh);
  return fresh;
}

geom_multitext marked_text(text_generator& random, std::size_t most) {
  geom_multitext text = random.text(most);
  add_marks(text, random);
  return text;
}

TEST(Laws, dispose_twice_changes_nothing) {
  text_generator random(1);
  for (int round = 0; round < rounds; ++round) expect_dispose_again_changes_nothing(random.text(40));
}

TEST(Laws, lines_and_columns_cover_the_parts_without_gap_or_overlap) {
  text_generator random(2);
  for (int round = 0; round < rounds; ++round) expect_lines_and_columns_cover(random.text(40));
}

TEST(Laws, insert_then_erase_restores_parts_marks_and_layout) {
  text_generator random(3);
  for (int round = 0; round < rounds; ++round) {
    const geom_multitext text = marked_text(random, 40);
    expect_insert_then_erase_restores(text, random.text(10), random.below(text.parts.size() + 1));
  }
}

TEST(Laws, two_halves_appended_give_the_text) {
  text_generator random(4);
  for (int round = 0; round < rounds; ++round) {
    const geom_multitext text = random.text(40);
    expect_halves_give_the_text(text, random.below(text.parts.size() + 1));
  }
}

TEST(Laws, a_slice_is_what_a_copy_keeps) {
  text_generator random(5);
  for (int round = 0; round < rounds; ++round) {
    geom_multitext text = marked_text(random, 20);
    const std::size_t first = random.below(text.parts.size() + 1);
    const std::size_t count = random.below(text.parts.size() - first + 1);
    const geom_multitext slice = text.slice(first, count);
    text.keep(first, count);
    ASSERT_EQ(layout_of(slice), layout_of(text));
    ASSERT_EQ(marks_of(slice), marks_of(text));
  }
}

TEST(Laws, every_mark_stays_in_range_under_any_sequence_of_edits) {
  text_generator random(6);
  for (int round = 0; round < rounds / 5; ++round) expect_marks_stay_in_range(random.text(20), random);
}

TEST(Laws, a_layout_after_edits_equals_one_from_scratch) {
  text_generator random(7);
  for (int round = 0; round < rounds; ++round) {
    geom_multitext text = random.text(30);
    for (int step = 0; step < 4; ++step) {
      edit(text, random);
      dispose(text);
    }
    ASSERT_EQ(layout_of(text), layout_of(laid_out_from_scratch(text))) << "round " << round;
  }
}

TEST(Laws, the_position_that_a_point_hits_is_one_of_the_text) {
  text_generator random(8);
  for (int round = 0; round < rounds; ++round) {
    const geom_multitext text = random.text(30);
    const double x = static_cast<double>(random.below(200)) - 50;
    const double y = 50 - static_cast<double>(random.below(300));
    const text_hit hit = text.position_at(x, y);
    ASSERT_LE(hit.at, text.parts.size());
    ASSERT_LE(hit.column, text.columns.size());
    ASSERT_TRUE(hit.line == text_hit::no_line || hit.line < text.lines.size());
  }
}

}  // namespace
}  // namespace mtext
