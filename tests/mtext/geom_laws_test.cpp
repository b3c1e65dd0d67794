#include <gtest/gtest.h>

#include <sstream>

#include "mtext/dispose.h"
#include "mtext/to_geom.h"
#include "tests/mtext/generated_text.h"

namespace mtext {
namespace {

constexpr int rounds = 500;

/// Everything that layout writes, exactly.
std::string layout_of(const geom_multitext& text) {
  std::ostringstream out;
  out << std::hexfloat;
  for (const geom_part& each : text.parts) out << each.x << ' ' << each.y << ' ' << each.size.advance << '\n';
  for (const geom_line& each : text.lines) {
    out << "line " << each.first << ' ' << each.last << ' ' << each.x << ' ' << each.y << ' '
        << each.size.advance << ' ' << each.size.head << ' ' << each.size.above << ' ' << each.size.below
        << ' ' << each.size.gap << '\n';
  }
  for (const geom_column& each : text.columns) {
    out << "column " << each.first << ' ' << each.last << ' ' << each.x << ' ' << each.y << ' ' << each.width
        << ' ' << each.height << '\n';
  }
  return out.str();
}

std::string marks_of(const geom_multitext& text) {
  std::ostringstream out;
  for (const marks::mark& each : text.marks)
    out << typeid(each).name() << each.begin << '-' << each.end << ' ';
  return out.str();
}

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

/// The ranges follow each other from the first part to the last.
template <class Range>
void expect_cover(const std::vector<Range>& ranges, std::size_t size) {
  std::size_t at = 0;
  for (const Range& each : ranges) {
    EXPECT_EQ(each.first, at);
    EXPECT_LE(each.first, each.last);
    at = each.last;
  }
  EXPECT_EQ(at, size);
}

void expect_marks_in_range(const geom_multitext& text) {
  for (const marks::mark& each : text.marks) {
    ASSERT_NO_THROW(text.verify_mark(each));
    ASSERT_LE(each.begin, each.end);
  }
}

void edit(geom_multitext& text, text_generator& random) {
  const std::size_t size = text.parts.size();
  const std::size_t first = random.below(size + 1);
  const std::size_t count = random.below(size - first + 1);
  switch (random.below(4)) {
    case 0:
      return text.erase(first, count, random.below(2) == 0);
    case 1:
      return text.append(random.text(5));
    case 2:
      return random.below(3) == 0 ? text.keep(first, count) : text.erase(first, count / 4, true);
    default:
      return text.insert(first, random.text(8));
  }
}

TEST(Laws, dispose_twice_changes_nothing) {
  text_generator random(1);
  for (int round = 0; round < rounds; ++round) {
    geom_multitext text = random.text(40);
    const std::string once = layout_of(text);
    dispose(text);
    ASSERT_EQ(layout_of(text), once) << "round " << round;
  }
}

TEST(Laws, lines_and_columns_cover_the_parts_without_gap_or_overlap) {
  text_generator random(2);
  for (int round = 0; round < rounds; ++round) {
    const geom_multitext text = random.text(40);
    expect_cover(text.lines, text.parts.size());
    expect_cover(text.columns, text.parts.size());
    for (std::size_t i = 0; i + 1 < text.lines.size(); ++i)
      ASSERT_LT(text.lines[i].first, text.lines[i].last);
  }
}

TEST(Laws, insert_then_erase_restores_parts_marks_and_layout) {
  text_generator random(3);
  for (int round = 0; round < rounds; ++round) {
    geom_multitext text = random.text(40);
    for (int i = 0; i < 5; ++i) text.marks.push_back(random.mark(text.parts.size()));
    const std::string parts = drawn(text), marks = marks_of(text), layout = layout_of(text);
    const geom_multitext inserted = random.text(10);
    const std::size_t at = random.below(text.parts.size() + 1);
    text.insert(at, inserted);
    dispose(text);
    text.erase(at, inserted.parts.size(), /*drop_empty=*/true);
    dispose(text);
    ASSERT_EQ(drawn(text), parts);
    ASSERT_EQ(marks_of(text), marks);
    ASSERT_EQ(layout_of(text), layout) << "round " << round;
  }
}

TEST(Laws, two_halves_appended_give_the_text) {
  text_generator random(4);
  for (int round = 0; round < rounds; ++round) {
    const geom_multitext text = random.text(40);
    const std::size_t middle = random.below(text.parts.size() + 1);
    geom_multitext joined = text.slice(0, middle);
    joined.append(text.slice(middle, geom_multitext::to_end));
    dispose(joined);
    ASSERT_EQ(drawn(joined), drawn(text));
    ASSERT_EQ(layout_of(joined), layout_of(text)) << "round " << round;
  }
}

TEST(Laws, a_slice_is_what_a_copy_keeps) {
  text_generator random(5);
  for (int round = 0; round < rounds; ++round) {
    geom_multitext text = random.text(20);
    for (int i = 0; i < 5; ++i) text.marks.push_back(random.mark(text.parts.size()));
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
  for (int round = 0; round < rounds / 5; ++round) {
    geom_multitext text = random.text(20);
    for (int step = 0; step < 20; ++step) {
      text.marks.push_back(random.mark(text.parts.size()));
      edit(text, random);
      expect_marks_in_range(text);
      marks::slide_selections(text.marks);
      marks::merge_selections(text.marks);
      expect_marks_in_range(text);
    }
  }
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
