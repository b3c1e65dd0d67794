#include <gtest/gtest.h>

#include "mtext/marks.h"

namespace mtext::marks {
namespace {

/// Begin, end, and whether the caret stands at the begin.
struct drawn_selection {
  std::size_t begin;
  std::size_t end;
  bool caret_at_begin;
  bool operator==(const drawn_selection&) const = default;
};

using drawn_selections = std::vector<drawn_selection>;

drawn_selections drawn(const mark_list& marks) {
  drawn_selections result;
  for (const selection& each : selections_of(marks))
    result.push_back({each.begin, each.end, each.caret_at_begin});
  return result;
}

drawn_selections merged(const std::vector<selection>& selections) {
  mark_list marks;
  merge_selections(selections, marks);
  return drawn(marks);
}

/// A caret after `slide_selections` with one solid in the text.
std::size_t slid(const solid& range, std::size_t position) {
  mark_list marks;
  marks.push_back(range.clone());
  marks.push_back(new selection(position));
  slide_selections(marks);
  return selections_of(marks)[0].begin;
}

TEST(Selection, from_a_position_is_a_caret) {
  const selection caret(3);
  EXPECT_EQ(caret.begin, 3u);
  EXPECT_EQ(caret.end, 3u);
  EXPECT_FALSE(caret.caret_at_begin);
  EXPECT_FALSE(caret.at_line_end);
}

TEST(Selection, from_anchor_and_caret_knows_its_direction) {
  const selection backwards(/*anchor=*/5, /*caret=*/2);
  EXPECT_EQ(backwards.begin, 2u);
  EXPECT_EQ(backwards.caret(), 2u);
  EXPECT_EQ(backwards.anchor(), 5u);
  EXPECT_TRUE(backwards.caret_at_begin);
  EXPECT_FALSE(selection(2, 5).caret_at_begin);
}

TEST(MergeSelections, overlapping_ones_become_one_with_the_flags_of_the_first) {
  EXPECT_EQ(merged({selection(5, 0), selection(3, 8)}), (drawn_selections{{0, 8, true}}));
}

TEST(MergeSelections, touching_ones_stay_two) {
  EXPECT_EQ(merged({selection(0, 5), selection(5, 8)}), (drawn_selections{{0, 5, false}, {5, 8, false}}));
}

TEST(MergeSelections, a_caret_at_the_end_of_a_selection_vanishes_into_it) {
  EXPECT_EQ(merged({selection(0, 5), selection(5)}), (drawn_selections{{0, 5, false}}));
}

TEST(MergeSelections, a_caret_at_the_start_of_a_selection_stays_if_it_comes_first) {
  EXPECT_EQ(merged({selection(5), selection(5, 8)}), (drawn_selections{{5, 5, false}, {5, 8, false}}));
}

TEST(MergeSelections, equal_carets_become_one) {
  EXPECT_EQ(merged({selection(4), selection(4), selection(4)}), (drawn_selections{{4, 4, false}}));
}

TEST(MergeSelections, goes_by_position_and_not_by_order) {
  EXPECT_EQ(merged({selection(6, 8), selection(0, 2), selection(1, 3)}),
            (drawn_selections{{0, 3, false}, {6, 8, false}}));
}

TEST(MergeSelections, of_nothing_adds_nothing) { EXPECT_TRUE(merged({}).empty()); }

TEST(MergeSelections, of_a_text_puts_them_back_behind_its_other_marks) {
  mark_list marks;
  marks.push_back(new selection(0, 5));
  marks.push_back(new field(1, 2, u"code"));
  marks.push_back(new selection(3, 8));
  EXPECT_EQ(&merge_selections(marks), &marks);
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_TRUE(dynamic_cast<field*>(&marks[0]));
  EXPECT_EQ(drawn(marks), (drawn_selections{{0, 8, false}}));
}

TEST(MergeSelections, of_given_ones_leaves_those_of_the_text) {
  mark_list marks;
  marks.push_back(new selection(0, 5));
  const selection given(3, 8);
  merge_selections(std::vector<const selection*>{&given}, marks);
  EXPECT_EQ(drawn(marks), (drawn_selections{{0, 5, false}, {3, 8, false}}));
}

TEST(SetSelections, replaces_all_and_slides_the_new_ones) {
  mark_list marks;
  marks.push_back(new selection(9));
  marks.push_back(new field(2, 6, u"code"));
  set_selections(std::vector<selection>{selection(0, 3)}, marks);
  EXPECT_EQ(drawn(marks), (drawn_selections{{0, 2, false}}));
}

TEST(SetSelections, takes_pointers_into_the_very_marks_it_replaces) {
  mark_list marks;
  marks.push_back(new selection(1, 4));
  marks.push_back(new selection(6));
  set_selections(std::vector<const selection*>{static_cast<const selection*>(&marks[0])}, marks);
  EXPECT_EQ(drawn(marks), (drawn_selections{{1, 4, false}}));
}

TEST(SlideSelections, in_a_label_from_10_to_13_position_11_goes_to_13_and_10_to_9) {
  const numbering label(10, 13, {{1, 0, 0}});
  EXPECT_EQ(slid(label, 11), 13u);
  EXPECT_EQ(slid(label, 10), 9u);
  EXPECT_EQ(slid(label, 9), 9u);
  EXPECT_EQ(slid(label, 13), 13u);
}

TEST(SlideSelections, in_a_label_that_opens_the_text_all_positions_go_behind_it) {
  const numbering label(0, 3, {{1, 0, 0}});
  EXPECT_EQ(slid(label, 0), 3u);
  EXPECT_EQ(slid(label, 1), 3u);
  EXPECT_EQ(slid(label, 2), 3u);
}

TEST(SlideSelections, the_begin_of_a_field_is_a_legal_stop_and_a_tie_goes_to_its_end) {
  const field range(2, 6, u"code");
  EXPECT_EQ(slid(range, 2), 2u);
  EXPECT_EQ(slid(range, 3), 2u);
  EXPECT_EQ(slid(range, 4), 6u);
}

TEST(SlideSelections, each_end_slides_by_itself_and_the_direction_follows) {
  mark_list marks;
  marks.push_back(new field(2, 6, u"code"));
  marks.push_back(new selection(/*anchor=*/7, /*caret=*/3));
  marks.push_back(new selection(/*anchor=*/5, /*caret=*/4));
  slide_selections(marks);
  EXPECT_EQ(drawn(marks), (drawn_selections{{2, 7, true}, {6, 6, false}}));
}

TEST(SlideSelections, of_overlapping_solids_the_first_in_the_list_counts) {
  mark_list marks;
  marks.push_back(new solid(0, 10, true));
  marks.push_back(new solid(2, 4, true));
  marks.push_back(new selection(3));
  slide_selections(marks);
  EXPECT_EQ(drawn(marks), (drawn_selections{{0, 0, false}}));
}

TEST(SlideSelections, leaves_the_affinity) {
  mark_list marks;
  marks.push_back(new field(2, 6, u"code"));
  auto* caret = new selection(3);
  caret->at_line_end = true;
  marks.push_back(caret);
  slide_selections(marks);
  EXPECT_TRUE(selections_of(marks)[0].at_line_end);
}

TEST(FindSolid, takes_the_first_of_any_kind_that_covers_the_position) {
  mark_list marks;
  marks.push_back(new mark(0, 9));
  marks.push_back(new numbering(0, 3, {{1, 0, 0}}));
  marks.push_back(new field(2, 5, u"code"));
  EXPECT_EQ(find_solid(marks, 2), &marks[1]);
  EXPECT_EQ(find_solid(marks, 3), &marks[2]);
  EXPECT_EQ(find_solid(marks, 5), nullptr);
  EXPECT_EQ(find_numbering(marks, 2), &marks[1]);
  EXPECT_EQ(find_numbering(marks, 4), nullptr);
}

TEST(DropEmptySolids, leaves_carets_plain_marks_and_solids_that_cover_something) {
  mark_list marks;
  marks.push_back(new solid(1, 1, true));
  marks.push_back(new field(2, 2, u"code"));
  marks.push_back(new numbering(3, 3, {{1, 0, 0}}));
  marks.push_back(new selection(4));
  marks.push_back(new mark(5, 5));
  marks.push_back(new solid(6, 7, true));
  drop_empty_solids(marks);
  EXPECT_EQ(marks.size(), 3u);
}

}  // namespace
}  // namespace mtext::marks
