#include <gtest/gtest.h>

#include "tests/mtext/labelled.h"

namespace mtext {
namespace {

/// The levels of the only label; none if there is no label, or more than one.
levels levels_in(const std::u16string& codes) {
  geom_multitext text = labelled(codes);
  const auto labels = labels_of(text);
  return labels.size() == 1 ? labels[0]->indices : levels{};
}

TEST(MarkNumberings, one_full_stop_tab_at_a_paragraph_start_makes_a_numbering_of_one_level) {
  geom_multitext text = labelled(u"1.\tx");
  ASSERT_EQ(labels_of(text).size(), 1u);
  const marks::numbering& label = *labels_of(text)[0];
  EXPECT_EQ(label.begin, 0u);
  EXPECT_EQ(label.end, 3u);
  EXPECT_FALSE(label.include_begin);
  EXPECT_EQ(label.indices, (levels{{1, 0, 0}}));
}

TEST(MarkNumberings, one_tab_makes_none) { EXPECT_TRUE(labelled(u"1\tx").marks.empty()); }

TEST(MarkNumberings, one_two_has_two_levels) {
  EXPECT_EQ(levels_in(u"1.2.\tx"), (levels{{1, 0, 0}, {2, 0, 0}}));
}

TEST(MarkNumberings, letters_and_bullets_are_labels) {
  EXPECT_EQ(levels_in(u"z.\tx"), (levels{{26, 1, 0}}));
  EXPECT_EQ(levels_in(u"B.\tx"), (levels{{2, 2, 0}}));
  EXPECT_EQ(levels_in(u"\u00b7\tx"), (levels{{0, 3, 0}}));
}

TEST(MarkNumberings, a_bullet_with_a_full_stop_is_no_label) {
  EXPECT_TRUE(labelled(u"\u00b7.\tx").marks.empty());
}

TEST(MarkNumberings, only_characters_from_the_start_to_the_tab_count) {
  for (const char16_t* codes : {u"1. \tx", u" 1.\tx", u"x1.\tx", u"\t1.\tx", u"\tx", u"1.\\S1/2;\tx",
                                u"1.\n\tx", u"1.\\P\tx", u"1.", u"1. x"}) {
    EXPECT_TRUE(labelled(codes).marks.empty());
  }
}

TEST(MarkNumberings, every_paragraph_is_looked_at_and_lines_are_not) {
  geom_multitext text = labelled(u"\\P1.\tx\\Pplain\n3.\ty\\N2.\tz");
  ASSERT_EQ(labels_of(text).size(), 2u);
  EXPECT_EQ(labels_of(text)[0]->begin, 1u);
  EXPECT_EQ(labels_of(text)[1]->begin, 17u);
}

TEST(MarkNumberings, a_label_and_a_tab_may_end_the_text) {
  EXPECT_EQ(levels_in(u"1.\t"), (levels{{1, 0, 0}}));
}

TEST(MarkNumberings, old_labels_go_and_other_marks_stay) {
  geom_multitext text = decoded(u"1.\tx");
  text.marks.push_back(new marks::numbering(3, 4, {{5, 0, 0}}));
  text.marks.push_back(new marks::selection(1, 2));
  mark_numberings(text, marks::default_letters());
  ASSERT_EQ(text.marks.size(), 2u);
  EXPECT_EQ(text.marks[0].begin, 1u);
  EXPECT_EQ(labels_of(text)[0]->indices, (levels{{1, 0, 0}}));
}

TEST(MarkNumberings, an_empty_text_does_nothing_in_all_of_these) {
  geom_multitext text;
  mark_numberings(text, marks::default_letters());
  marks::update_numberings(text.marks, marks::default_letters());
  update_every_numbering(text, stub_finder(), marks::default_letters());
  EXPECT_TRUE(text.marks.empty());
  EXPECT_TRUE(text.parts.empty());
}

TEST(MarkNumberings, the_label_of_an_empty_text_is_an_empty_mark_and_stays) {
  geom_multitext text;
  marks::numbering label(0, 0, {{1, 0, 0}});
  update_numbering(text, label, stub_finder(), marks::default_letters());
  clean_numbering_format(text, label);
  EXPECT_TRUE(text.parts.empty());
}

TEST(Numbering, is_never_made_without_levels) {
  try {
    marks::numbering(0, 3, {});
    FAIL() << "nothing was thrown";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "mtext::marks::numbering: indices must not be empty");
  }
}

}  // namespace
}  // namespace mtext
