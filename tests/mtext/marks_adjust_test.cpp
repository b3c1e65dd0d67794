#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

using range = std::pair<std::size_t, std::size_t>;

range range_of(const geom_multitext& text) { return {text.marks[0].begin, text.marks[0].end}; }

/// What becomes of a selection when three parts are inserted.
range after_insertion(std::size_t begin, std::size_t end, std::size_t at) {
  geom_multitext text = decoded(u"abcdefghij");
  text.marks.push_back(new marks::selection(begin, end));
  text.insert(at, decoded(u"xyz"));
  return range_of(text);
}

/// What becomes of a selection when three parts are erased.
range after_erasure(std::size_t begin, std::size_t end, std::size_t first) {
  geom_multitext text = decoded(u"abcdefghij");
  text.marks.push_back(new marks::selection(begin, end));
  text.erase(first, 3, true);
  return range_of(text);
}

TEST(Insertion, at_the_position_of_a_caret_moves_the_caret_behind_the_new_text) {
  EXPECT_EQ(after_insertion(4, 4, 4), range(7, 7));
}

TEST(Insertion, at_the_end_of_a_selection_does_not_widen_it) {
  EXPECT_EQ(after_insertion(2, 4, 4), range(2, 4));
}

TEST(Insertion, at_the_begin_of_a_selection_moves_it) { EXPECT_EQ(after_insertion(2, 4, 2), range(5, 7)); }

TEST(Insertion, inside_a_selection_widens_it) { EXPECT_EQ(after_insertion(2, 4, 3), range(2, 7)); }

TEST(Insertion, behind_a_selection_leaves_it) { EXPECT_EQ(after_insertion(2, 4, 5), range(2, 4)); }

TEST(Erasure, before_a_mark_moves_it) { EXPECT_EQ(after_erasure(5, 7, 1), range(2, 4)); }

TEST(Erasure, around_a_mark_leaves_it_empty_at_the_start) { EXPECT_EQ(after_erasure(3, 4, 2), range(2, 2)); }

TEST(Erasure, over_the_begin_of_a_mark_takes_the_overlap) { EXPECT_EQ(after_erasure(4, 8, 2), range(2, 5)); }

TEST(Erasure, inside_a_mark_shrinks_it) { EXPECT_EQ(after_erasure(2, 8, 3), range(2, 5)); }

TEST(Erasure, over_the_end_of_a_mark_ends_it_there) { EXPECT_EQ(after_erasure(2, 4, 3), range(2, 3)); }

TEST(Erasure, behind_a_mark_leaves_it) { EXPECT_EQ(after_erasure(2, 4, 4), range(2, 4)); }

TEST(Erasure, of_a_stretch_that_contains_a_caret_leaves_the_caret_at_its_start) {
  EXPECT_EQ(after_erasure(4, 4, 3), range(3, 3));
}

TEST(Erasure, of_exactly_a_field_removes_its_mark_when_empty_ones_are_dropped) {
  geom_multitext text = decoded(u"ab%<code>%cd");
  text.erase(2, 4, /*drop_empty=*/true);
  EXPECT_TRUE(text.marks.empty());
}

TEST(Erasure, of_exactly_a_field_leaves_its_mark_empty_otherwise) {
  geom_multitext text = decoded(u"ab%<code>%cd");
  text.erase(2, 4, /*drop_empty=*/false);
  EXPECT_EQ(range_of(text), range(2, 2));
}

TEST(Erasure, drops_solids_alone_and_keeps_carets) {
  geom_multitext text = decoded(u"abcd");
  text.marks.push_back(new marks::selection(2));
  text.marks.push_back(new marks::solid(1, 3, true));
  text.marks.push_back(new marks::mark(1, 3));
  text.erase(1, 2, /*drop_empty=*/true);
  EXPECT_EQ(text.marks.size(), 2u);
}

TEST(Erasure, drops_every_empty_solid_wherever_it_lies) {
  for (const bool drop : {false, true}) {
    geom_multitext text = decoded(u"abcd");
    text.marks.push_back(new marks::solid(4, 4, true));
    text.erase(0, 1, drop);
    EXPECT_EQ(text.marks.size(), drop ? 0u : 1u);
  }
}

}  // namespace
}  // namespace mtext
