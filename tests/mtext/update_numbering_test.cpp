#include <gtest/gtest.h>

#include "mtext/ensure.h"
#include "tests/mtext/labelled.h"

namespace mtext {
namespace {

using range = std::pair<std::size_t, std::size_t>;

range range_of(const marks::mark& mark) { return {mark.begin, mark.end}; }

/// The text after the part at 0 became a label of these levels.
std::string written(levels indices, const marks::letters_dictionary& dictionary = marks::default_letters()) {
  geom_multitext text = decoded(u"xyz");
  auto* label = new marks::numbering(0, 1, std::move(indices));
  text.marks.push_back(label);
  update_numbering(text, *label, stub_finder(), dictionary);
  return drawn(text);
}

const format::string& format_of(const geom_multitext& text, std::size_t at) {
  return text.parts[at].part().format;
}

TEST(UpdateNumbering, writes_numbers_and_letters_with_a_full_stop_and_bullets_without) {
  EXPECT_EQ(written({{12, 0, 0}}), "12.>yz");
  EXPECT_EQ(written({{28, 1, 0}}), "ab.>yz");
  EXPECT_EQ(written({{2, 2, 0}}), "B.>yz");
  EXPECT_EQ(written({{5, 3, 0}}), "\xb7>yz");
}

TEST(UpdateNumbering, writes_all_levels) {
  EXPECT_EQ(written({{2, 0, 0}, {1, 0, 0}}), "2.1.>yz");
  EXPECT_EQ(written({{2, 2, 0}, {3, 0, 0}}), "B.3.>yz");
}

TEST(UpdateNumbering, of_the_number_0_writes_no_letters) { EXPECT_EQ(written({{0, 1, 0}}), ".>yz"); }

TEST(UpdateNumbering, letters_are_those_of_the_levels_alphabet_in_either_length) {
  const marks::letters_dictionary dictionary{{u"x", u"", u"abc", u"AB"}, {u"y", u"", u"pq", u"PQR"}};
  EXPECT_EQ(written({{4, 1, 0}, {4, 2, 0}, {4, 1, 1}, {4, 2, 1}}, dictionary), "aa.AB.pq.PP.>yz");
}

TEST(UpdateNumbering, covers_the_label_anew_and_moves_what_follows) {
  geom_multitext text = labelled(u"9.\tx");
  text.marks.push_back(new marks::selection(4));
  marks::numbering& label = *labels_of(text)[0];
  label.indices = {{100, 0, 0}};
  update_numbering(text, label, stub_finder(), marks::default_letters());
  EXPECT_EQ(drawn(text), "100.>x");
  EXPECT_EQ(range_of(label), range(0, 5));
  EXPECT_EQ(range_of(text.marks[1]), range(6, 6));
}

TEST(UpdateNumbering, a_caret_in_the_label_goes_behind_it) {
  geom_multitext text = labelled(u"1.\tx");
  text.marks.push_back(new marks::selection(1));
  renumber(text);
  EXPECT_EQ(range_of(text.marks[1]), range(3, 3));
}

TEST(UpdateNumbering, takes_the_format_of_the_start_of_the_text_without_lines_under_and_over_it) {
  geom_multitext text = labelled(u"{\\C1;1.\t}{\\C3;\\L\\O\\H2x;x}");
  renumber(text);
  EXPECT_EQ(format_of(text, 0).color.index, 3);
  EXPECT_EQ(format_of(text, 0).height, 20);
  EXPECT_EQ(format_of(text, 0).flags, 0u);
  EXPECT_EQ(format_of(text, 2).flags, 0u);
  EXPECT_EQ(format_of(text, 3).flags, format::flag_underline | format::flag_overline);
}

TEST(UpdateNumbering, at_the_end_of_the_text_takes_the_format_of_its_last_element) {
  geom_multitext text = labelled(u"{\\C1;1.}{\\C2;\t}");
  renumber(text);
  EXPECT_EQ(format_of(text, 0).color.index, 2);
}

TEST(UpdateNumbering, a_bullet_is_written_in_its_font_and_the_tab_is_not) {
  geom_multitext text = labelled(u"{\\fArial|b1|i1|c204|p34;\u00b7\tx}");
  renumber(text);
  EXPECT_EQ(format_of(text, 0).font, u"Symbol");
  EXPECT_EQ(format_of(text, 0).charset, 2u);
  EXPECT_EQ(format_of(text, 0).pitch, 18u);
  EXPECT_EQ(format_of(text, 0).flags, 0u);
  EXPECT_EQ(format_of(text, 1).font, u"Arial");
}

TEST(UpdateNumbering, measures_what_it_writes) {
  geom_multitext text = labelled(u"9.\tx");
  renumber(text);
  EXPECT_EQ(text.parts[0].size.advance, 6);
}

TEST(UpdateNumbering, of_an_empty_mark_does_nothing_wherever_it_stands) {
  geom_multitext text = decoded(u"abc");
  marks::numbering label(9, 9, {{1, 0, 0}});
  update_numbering(text, label, stub_finder(), marks::default_letters());
  EXPECT_EQ(drawn(text), "abc");
}

TEST(UpdateNumbering, of_a_mark_beyond_the_text_throws_what_the_text_throws) {
  geom_multitext text = decoded(u"abc");
  marks::numbering label(1, 9, {{1, 0, 0}});
  try {
    update_numbering(text, label, stub_finder(), marks::default_letters());
    FAIL() << "nothing was thrown";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "geom_multitext::verify_mark: mark doesn't belong to multitext");
  }
}

TEST(UpdateNumbering, of_letters_beyond_the_dictionary_throws_and_leaves_the_text) {
  geom_multitext text = labelled(u"a.\tx");
  EXPECT_THROW(update_numbering(text, *labels_of(text)[0], stub_finder(), {}), ensure_error);
  EXPECT_EQ(drawn(text), "a.>x");
}

TEST(UpdateEveryNumbering, leaves_the_text_when_one_label_cannot_be_written) {
  geom_multitext text = labelled(u"7.\tx\\Pa.\ty");
  labels_of(text)[0]->indices = {{1, 0, 0}};
  EXPECT_THROW(update_every_numbering(text, stub_finder(), {}), ensure_error);
  EXPECT_EQ(drawn(text), "7.>x|a.>y");
}

TEST(UpdateEveryNumbering, writes_labels_that_stand_in_any_order) {
  geom_multitext text = decoded(u"abcdef");
  text.marks.push_back(new marks::numbering(4, 5, {{22, 0, 0}}));
  text.marks.push_back(new marks::numbering(1, 3, {{11, 0, 0}}));
  update_every_numbering(text, stub_finder(), marks::default_letters());
  EXPECT_EQ(drawn(text), "a11.>d22.>f");
}

}  // namespace
}  // namespace mtext
