#include "mtext/geom_multitext.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

/// The message of the `std::invalid_argument` that `action` throws; empty if it throws none.
template <class Action>
std::string refusal(Action action) {
  try {
    action();
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
  return "";
}

constexpr char invalid_positions[] = "geom_multitext::erase: invalid positions";

TEST(GeomMultitext, a_fresh_one_has_the_default_settings_and_nothing_else) {
  const geom_multitext text;
  EXPECT_TRUE(text.format.relative);
  EXPECT_EQ(text.info.height, 2.5);
  EXPECT_EQ(text.info.alignment, 1u);
  EXPECT_EQ(text.info.spacing.style, 3u);
  EXPECT_EQ(text.info.columns.heights, std::vector<double>{0.0});
  EXPECT_TRUE(text.parts.empty() && text.lines.empty() && text.columns.empty() && text.marks.empty());
}

TEST(GeomMultitext, a_copy_owns_its_parts_and_marks) {
  geom_multitext text = decoded(u"ab");
  text.marks.push_back(new marks::field(0, 2, u"code"));
  geom_multitext copy(text);
  text.parts[0].x = 100;
  text.marks[0].begin = 1;
  EXPECT_EQ(drawn(copy), "ab");
  EXPECT_EQ(copy.parts[0].x, 0);
  EXPECT_EQ(copy.marks[0].begin, 0u);
  EXPECT_TRUE(dynamic_cast<const marks::field*>(&copy.marks[0]));
}

TEST(GeomMultitext, a_move_leaves_the_source_without_parts_and_marks) {
  geom_multitext text = decoded(u"ab");
  text.marks.push_back(new marks::selection(1));
  const geom_multitext moved(std::move(text));
  EXPECT_EQ(drawn(moved), "ab");
  EXPECT_EQ(moved.marks.size(), 1u);
  EXPECT_TRUE(text.parts.empty() && text.marks.empty() && text.lines.empty());
}

TEST(GeomMultitext, append_shifts_the_marks_of_the_other_and_empties_it) {
  geom_multitext text = decoded(u"ab");
  text.marks.push_back(new marks::selection(2));
  geom_multitext other = decoded(u"cd");
  other.marks.push_back(new marks::selection(0, 1));
  text.append(std::move(other));
  EXPECT_EQ(drawn(text), "abcd");
  EXPECT_EQ(text.marks[0].begin, 2u);
  EXPECT_EQ(text.marks[1].begin, 2u);
  EXPECT_EQ(text.marks[1].end, 3u);
  EXPECT_TRUE(other.parts.empty() && other.marks.empty());
}

TEST(GeomMultitext, insert_brings_the_marks_of_the_other_which_its_own_rule_leaves_alone) {
  geom_multitext text = decoded(u"ad");
  text.marks.push_back(new marks::selection(0, 2));
  geom_multitext other = decoded(u"bc");
  other.marks.push_back(new marks::field(0, 2, u"code"));
  text.insert(1, std::move(other));
  EXPECT_EQ(drawn(text), "abcd");
  EXPECT_EQ(text.marks[0].end, 4u);
  EXPECT_EQ(text.marks[1].begin, 1u);
  EXPECT_EQ(text.marks[1].end, 3u);
}

TEST(GeomMultitext, insert_of_a_copy_leaves_the_source_whole) {
  geom_multitext text = decoded(u"ab");
  const geom_multitext other = decoded(u"cd");
  text.insert(0, other);
  EXPECT_EQ(drawn(text), "cdab");
  EXPECT_EQ(drawn(other), "cd");
}

TEST(GeomMultitext, insert_at_the_end_is_valid_and_one_behind_it_throws) {
  geom_multitext text = decoded(u"ab");
  text.insert(2, decoded(u"c"));
  EXPECT_EQ(drawn(text), "abc");
  EXPECT_EQ(refusal([&] { text.insert(4, decoded(u"d")); }), "geom_multitext::insert: invalid position");
  EXPECT_EQ(drawn(text), "abc");
}

TEST(GeomMultitext, erase_of_nothing_at_the_end_is_valid_and_changes_nothing) {
  geom_multitext text = decoded(u"ab");
  text.erase(2, 0, true);
  EXPECT_EQ(drawn(text), "ab");
}

TEST(GeomMultitext, erase_refuses_ranges_beyond_the_end) {
  geom_multitext text = decoded(u"ab");
  EXPECT_EQ(refusal([&] { text.erase(3, 0, false); }), invalid_positions);
  EXPECT_EQ(refusal([&] { text.erase(3, geom_multitext::to_end, false); }), invalid_positions);
  EXPECT_EQ(refusal([&] { text.erase(1, 2, false); }), invalid_positions);
  EXPECT_EQ(refusal([&] { text.erase(1, geom_multitext::to_end - 1, false); }), invalid_positions);
  EXPECT_EQ(refusal([&] { text.erase(marks::mark(2, 1), false); }), invalid_positions);
  EXPECT_EQ(drawn(text), "ab");
}

TEST(GeomMultitext, erase_of_all_ones_reaches_to_the_end) {
  geom_multitext text = decoded(u"abcd");
  text.erase(1, geom_multitext::to_end, false);
  EXPECT_EQ(drawn(text), "a");
}

TEST(GeomMultitext, erase_of_a_mark_erases_what_it_covers) {
  geom_multitext text = decoded(u"abcd");
  text.erase(marks::mark(1, 3), false);
  EXPECT_EQ(drawn(text), "ad");
}

TEST(GeomMultitext, keep_cuts_both_ends_and_drops_the_solids_that_lay_there) {
  geom_multitext text = decoded(u"abcdef");
  text.marks.push_back(new marks::field(0, 1, u"before"));
  text.marks.push_back(new marks::field(1, 3, u"across"));
  text.marks.push_back(new marks::selection(5));
  text.keep(2, 2);
  EXPECT_EQ(drawn(text), "cd");
  ASSERT_EQ(text.marks.size(), 2u);
  EXPECT_EQ(text.marks[0].begin, 0u);
  EXPECT_EQ(text.marks[0].end, 1u);
  EXPECT_EQ(text.marks[1].begin, 2u);
  EXPECT_EQ(refusal([&] { text.keep(0, 3); }), invalid_positions);
}

TEST(GeomMultitext, keep_drops_every_empty_solid_wherever_it_lies) {
  geom_multitext text = decoded(u"abcdef");
  text.marks.push_back(new marks::field(3, 3, u"within"));
  text.marks.push_back(new marks::mark(3, 3));
  text.keep(2, 2);
  ASSERT_EQ(text.marks.size(), 1u);
  EXPECT_FALSE(dynamic_cast<marks::solid*>(&text.marks[0]));
}

TEST(GeomMultitext, slice_is_a_copy_on_which_keep_ran) {
  const geom_multitext text = decoded(u"ab cd", frame(20));
  const geom_multitext sliced = text.slice(1, 3);
  EXPECT_EQ(drawn(sliced), "b c");
  EXPECT_EQ(sliced.lines.size(), text.lines.size());
  EXPECT_EQ(sliced.info.height, 10);
  EXPECT_EQ(drawn(text), "ab cd");
  EXPECT_EQ(refusal([&] { text.slice(4, 2); }), invalid_positions);
}

TEST(GeomMultitext, line_drops_its_terminator_and_counts_it_in_its_line) {
  const geom_multitext text = decoded(u"ab\\Pcd\\P");
  const geom_multitext second = text.line(1);
  EXPECT_EQ(drawn(second), "cd");
  ASSERT_EQ(second.lines.size(), 1u);
  EXPECT_EQ(second.lines[0].first, 0u);
  EXPECT_EQ(second.lines[0].last, 3u);
  EXPECT_EQ(second.lines[0].y, text.lines[1].y);
}

TEST(GeomMultitext, line_on_a_last_line_without_terminator_keeps_all_of_its_parts) {
  EXPECT_EQ(drawn(decoded(u"ab\\Pcd").line(1)), "cd");
}

TEST(GeomMultitext, line_gives_the_empty_line_at_the_end_of_the_text) {
  const geom_multitext last = decoded(u"ab\\P").line(1);
  EXPECT_EQ(drawn(last), "");
  EXPECT_EQ(last.lines[0].last, 0u);
}

TEST(GeomMultitext, line_beyond_the_lines_throws) {
  const geom_multitext text = decoded(u"ab");
  EXPECT_EQ(refusal([&] { text.line(1); }), "geom_multitext::line: mtext has not enough lines");
}

TEST(GeomMultitext, verify_elem_passes_at_the_end_and_throws_one_behind_it) {
  const geom_multitext text = decoded(u"ab");
  text.verify_elem(2);
  EXPECT_EQ(refusal([&] { text.verify_elem(3); }),
            "geom_multitext::verify_elem: at doesn't belong to multitext");
}

TEST(GeomMultitext, verify_mark_looks_at_both_ends) {
  const geom_multitext text = decoded(u"ab");
  constexpr char foreign[] = "geom_multitext::verify_mark: mark doesn't belong to multitext";
  text.verify_mark(marks::mark(0, 2));
  EXPECT_EQ(refusal([&] { text.verify_mark(marks::mark(0, 3)); }), foreign);
  EXPECT_EQ(refusal([&] { text.verify_mark(marks::mark(3, 0)); }), foreign);
}

TEST(GeomMultitext, the_paragraph_of_a_position_is_that_of_the_nearest_paragraph_end_before_it) {
  const geom_multitext text = decoded(u"\\pxl1;ab\\P\\pxl2;cd");
  EXPECT_EQ(paragraph_at(text, 2).left, 1);
  EXPECT_EQ(paragraph_at(text, 3).left, 2);
  EXPECT_EQ(paragraph_at(text, 5).left, 2);
}

}  // namespace
}  // namespace mtext
