#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

#include "mtext/dispose.h"
#include "tests/mtext/generated_text.h"

/// What holds for every laid-out text, each law an expectation about one text that `dispose` has seen.
namespace mtext {

/// Everything that layout writes, exactly.
inline std::string layout_of(const geom_multitext& text) {
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

/// Every mark with its class and range, in their order.
inline std::string marks_of(const geom_multitext& text) {
  std::ostringstream out;
  for (const marks::mark& each : text.marks)
    out << typeid(each).name() << each.begin << '-' << each.end << ' ';
  return out.str();
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

/// A few marks of all classes, somewhere.
inline void add_marks(geom_multitext& text, text_generator& random) {
  for (int i = 0; i < 5; ++i) text.marks.push_back(random.mark(text.parts.size()));
}

inline void expect_dispose_again_changes_nothing(const geom_multitext& text) {
  geom_multitext again(text);
  dispose(again);
  EXPECT_EQ(layout_of(again), layout_of(text));
  EXPECT_EQ(marks_of(again), marks_of(text));
}

/// Only the line for the caret at the end of a text is without parts.
inline void expect_lines_and_columns_cover(const geom_multitext& text) {
  expect_cover(text.lines, text.parts.size());
  expect_cover(text.columns, text.parts.size());
  for (std::size_t i = 0; i + 1 < text.lines.size(); ++i) EXPECT_LT(text.lines[i].first, text.lines[i].last);
}

inline void expect_insert_then_erase_restores(const geom_multitext& text, const geom_multitext& inserted,
                                              std::size_t at) {
  geom_multitext edited(text);
  edited.insert(at, inserted);
  dispose(edited);
  edited.erase(at, inserted.parts.size(), /*drop_empty=*/true);
  dispose(edited);
  EXPECT_EQ(drawn(edited), drawn(text));
  EXPECT_EQ(marks_of(edited), marks_of(text));
  EXPECT_EQ(layout_of(edited), layout_of(text));
}

inline void expect_halves_give_the_text(const geom_multitext& text, std::size_t middle) {
  geom_multitext joined = text.slice(0, middle);
  joined.append(text.slice(middle, geom_multitext::to_end));
  dispose(joined);
  EXPECT_EQ(drawn(joined), drawn(text));
  EXPECT_EQ(layout_of(joined), layout_of(text));
}

inline void expect_marks_in_range(const geom_multitext& text) {
  for (const marks::mark& each : text.marks) {
    ASSERT_NO_THROW(text.verify_mark(each));
    ASSERT_LE(each.begin, each.end);
  }
}

/// One edit of any kind, somewhere.
inline void edit(geom_multitext& text, text_generator& random) {
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

/// Edits `text` over and over, with marks of all classes in it.
inline void expect_marks_stay_in_range(geom_multitext text, text_generator& random) {
  for (int step = 0; step < 20; ++step) {
    text.marks.push_back(random.mark(text.parts.size()));
    edit(text, random);
    expect_marks_in_range(text);
    marks::slide_selections(text.marks);
    marks::merge_selections(text.marks);
    expect_marks_in_range(text);
  }
}

}  // namespace mtext
