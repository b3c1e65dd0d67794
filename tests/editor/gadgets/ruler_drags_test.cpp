#include <gtest/gtest.h>

#include "editor/gadgets/indent_drag.h"
#include "editor/gadgets/paragraphs.h"
#include "editor/gadgets/tab_drag.h"

using mtext::indent_kind;
using mtext::format::paragraph;
using mtext::format::tab_stop;

namespace {

tab_stop stop(double position, std::uint32_t kind = 0, char16_t decimal_char = u' ') {
  return {.position = position, .kind = kind, .decimal_char = decimal_char};
}

std::vector<double> positions(const paragraph& of) {
  std::vector<double> found;
  for (const tab_stop& each : of.tabs) found.push_back(each.position);
  return found;
}

paragraph with_tabs(std::vector<tab_stop> tabs) {
  paragraph made;
  made.tabs = std::move(tabs);
  return made;
}

using at = std::vector<double>;

}  // namespace

TEST(TabDrag, a_press_snaps_to_the_nearest_tick_and_half_way_goes_up) {
  EXPECT_EQ(mtext::nearest_tick(11, 2.5), 4);
  EXPECT_EQ(mtext::nearest_tick(11.25, 2.5), 5);
  EXPECT_EQ(mtext::nearest_tick(0.3, 2.5), 0);
}

TEST(TabDrag, a_press_on_a_stop_leaves_the_text_as_it_was) {
  paragraph text = with_tabs({stop(2), stop(4.3, 2), stop(7)});
  const auto drag = mtext::begin_tab_drag({&text}, 4, 0);
  ASSERT_TRUE(drag);
  EXPECT_EQ(drag->stop.position, 4.3) << "it is not snapped";
  EXPECT_EQ(positions(text), (at{2, 4.3, 7}));
  EXPECT_EQ(text.tabs[1].kind, 2u);
}

TEST(TabDrag, a_press_on_an_empty_spot_adds_a_stop_at_the_tick) {
  paragraph text = with_tabs({stop(2), stop(7)});
  mtext::begin_tab_drag({&text}, 4, 3);
  EXPECT_EQ(positions(text), (at{2, 4, 7}));
  EXPECT_EQ(text.tabs[1].kind, 3u);
  EXPECT_EQ(text.tabs[1].decimal_char, u' ');
}

TEST(TabDrag, a_press_near_0_adds_a_stop_at_0) {
  paragraph text;
  mtext::begin_tab_drag({&text}, mtext::nearest_tick(0.4, 2.5), 0);
  EXPECT_EQ(positions(text), at{0});
}

TEST(TabDrag, without_paragraphs_is_none) { EXPECT_FALSE(mtext::begin_tab_drag({}, 4, 0)); }

TEST(TabDrag, two_stops_of_one_kind_on_one_tick_become_one) {
  paragraph text = with_tabs({stop(2), stop(7)});
  auto drag = mtext::begin_tab_drag({&text}, 2, 0);
  mtext::drag_tab_to(*drag, 7);
  EXPECT_EQ(positions(text), at{7});
  mtext::drag_tab_to(*drag, 5);
  EXPECT_EQ(positions(text), (at{5, 7})) << "the other one is only hidden while they meet";
}

TEST(TabDrag, a_decimal_stop_with_another_character_survives_at_the_same_place) {
  paragraph text = with_tabs({stop(2, 3, u'.'), stop(7, 3, u',')});
  auto drag = mtext::begin_tab_drag({&text}, 2, 0);
  mtext::drag_tab_to(*drag, 7);
  EXPECT_EQ(positions(text), (at{7, 7}));
}

TEST(TabDrag, the_first_of_two_paragraphs_decides_the_kind_and_replaces_the_stop_of_the_second) {
  paragraph first = with_tabs({stop(4, 1)});
  paragraph second = with_tabs({stop(4.4, 2), stop(9)});
  auto drag = mtext::begin_tab_drag({&first, &second}, 4, 0);
  EXPECT_EQ(positions(second), (at{4, 9}));
  EXPECT_EQ(second.tabs[0].kind, 1u);
  mtext::drag_tab_to(*drag, 6);
  EXPECT_EQ(positions(first), at{6});
  EXPECT_EQ(positions(second), (at{6, 9}));
}

TEST(TabDrag, a_stop_that_is_dropped_off_the_ruler_is_gone) {
  paragraph text = with_tabs({stop(2), stop(7)});
  const auto drag = mtext::begin_tab_drag({&text}, 7, 0);
  mtext::remove_dragged_tab(*drag);
  EXPECT_EQ(positions(text), at{2});
}

namespace {

paragraph indented(double indent, double left, double right) {
  paragraph made;
  made.indent = indent;
  made.left = left;
  made.right = right;
  return made;
}

}  // namespace

TEST(IndentDrag, the_left_handle_leaves_the_first_line_where_it_is) {
  paragraph text = indented(2, 1, 0);
  mtext::drag_indents_to({&text}, indent_kind::left, 4, 20);
  EXPECT_EQ(text.left, 4);
  EXPECT_EQ(text.indent, -1);
}

TEST(IndentDrag, the_first_line_stays_between_0_and_the_right_margin) {
  paragraph text = indented(2, 1, 5);
  mtext::drag_indents_to({&text}, indent_kind::first_line, 6, 20);
  EXPECT_EQ(text.indent, 5);
  mtext::drag_indents_to({&text}, indent_kind::first_line, -3, 20);
  EXPECT_EQ(text.indent, -1);
  mtext::drag_indents_to({&text}, indent_kind::first_line, 30, 20);
  EXPECT_EQ(text.indent, 14);
}

TEST(IndentDrag, the_right_handle_stops_at_left_and_at_indent_when_that_is_greater) {
  paragraph text = indented(0, 6, 0);
  mtext::drag_indents_to({&text}, indent_kind::right, 2, 20);
  EXPECT_EQ(text.right, 14);
  text = indented(9, 6, 0);
  mtext::drag_indents_to({&text}, indent_kind::right, 2, 20);
  EXPECT_EQ(text.right, 11);
  mtext::drag_indents_to({&text}, indent_kind::right, 25, 20);
  EXPECT_EQ(text.right, 0);
}

TEST(IndentDrag, a_clamp_carries_over_to_the_next_paragraph) {
  paragraph narrow = indented(0, 0, 15), wide = indented(0, 0, 0);
  mtext::drag_indents_to({&narrow, &wide}, indent_kind::left, 12, 20);
  EXPECT_EQ(narrow.left, 5);
  EXPECT_EQ(wide.left, 5);
}

TEST(IndentDrag, writes_ticks_into_a_paragraph_that_measures_in_drawing_units) {
  paragraph text = indented(0, 0, 0);
  text.relative = false;
  mtext::drag_indents_to({&text}, indent_kind::left, 4, 20);
  EXPECT_EQ(text.left, 4);
  EXPECT_FALSE(text.relative);
}

TEST(IndentDrag, knows_its_handles_by_name) {
  EXPECT_EQ(mtext::indent_named(u"indent"), indent_kind::first_line);
  EXPECT_EQ(mtext::indent_named(u"left-indent"), indent_kind::left);
  EXPECT_EQ(mtext::indent_named(u"right-indent"), indent_kind::right);
  EXPECT_FALSE(mtext::indent_named(u"tab"));
}

namespace {

/// Four paragraphs without a letter: three paragraph ends.
mtext::geom_multitext four_paragraphs() {
  mtext::geom_multitext text;
  for (const double left : {1, 2, 3}) {
    paragraph opened;
    opened.left = left;
    text.parts.push_back(
        new mtext::geom_new_paragraph(mtext::new_paragraph(opened, mtext::format::string(), false)));
  }
  return text;
}

}  // namespace

TEST(Paragraphs, that_selections_touch_are_each_given_once_in_text_order) {
  mtext::geom_multitext text = four_paragraphs();
  text.marks.push_back(new mtext::marks::selection(3));
  text.marks.push_back(new mtext::marks::selection(0, 1));
  text.marks.push_back(new mtext::marks::selection(0));
  const auto touched = mtext::touched_paragraphs(text);
  const auto all = mtext::all_paragraphs(text);
  ASSERT_EQ(all.size(), 4u);
  EXPECT_EQ(touched, (std::vector<paragraph*>{all[0], all[1], all[3]}));
  EXPECT_EQ(all[0], &text.format);
  EXPECT_EQ(all[3]->left, 3);
}

TEST(Paragraphs, behind_a_selected_paragraph_end_are_touched_too) {
  mtext::geom_multitext text = four_paragraphs();
  text.marks.push_back(new mtext::marks::selection(1, 2));
  EXPECT_EQ(mtext::touched_paragraphs(text).size(), 2u);
  text.marks.clear();
  text.marks.push_back(new mtext::marks::selection(2));
  EXPECT_EQ(mtext::touched_paragraphs(text).size(), 1u);
}
