#include <gtest/gtest.h>

#include "mtext/ensure.h"
#include "tests/mtext/labelled.h"

namespace mtext {
namespace {

TEST(UpdateNumberings, items_of_a_level_are_counted_from_1) {
  EXPECT_EQ(renumbered(u"7.\ta\\P7.\tb\\P1.\tc"), "1.>a|2.>b|3.>c");
}

TEST(UpdateNumberings, the_item_after_z_is_aa) {
  std::u16string codes = u"a.\t";
  std::string last;
  for (int i = 0; i < 26; ++i) codes += u"\\Pa.\t";
  const std::string text = renumbered(codes);
  EXPECT_EQ(text.substr(text.size() - 8), "z.>|aa.>");
}

TEST(UpdateNumberings, after_a_deeper_list_the_count_at_the_first_level_goes_on) {
  EXPECT_EQ(renumbered(u"1.\ta\\P2.\tb\\P2.1.\tc\\P3.\td"), "1.>a|2.>b|2.1.>c|3.>d");
  EXPECT_EQ(renumbered(u"1.\ta\\P1.\tb\\P1.9.\tc\\P1.\td"), "1.>a|2.>b|2.1.>c|3.>d");
}

TEST(UpdateNumberings, going_up_a_level_removes_the_deeper_counters) {
  EXPECT_EQ(renumbered(u"1.\ta\\P1.1.\tb\\P1.2.\tc\\P2.\td\\P2.3.\te"), "1.>a|1.1.>b|1.2.>c|2.>d|2.1.>e");
}

TEST(UpdateNumberings, a_paragraph_without_a_label_does_not_interrupt_a_list) {
  EXPECT_EQ(renumbered(u"1.\ta\\Pb\\P1.\tc"), "1.>a|b|2.>c");
}

TEST(UpdateNumberings, kinds_and_alphabets_count_each_by_itself) {
  EXPECT_EQ(renumbered(u"1.\t\\Pc.\t\\PC.\t\\P1.\t\\Pc.\t"), "1.>|a.>|A.>|2.>|b.>");
}

TEST(UpdateNumberings, bullets_are_counted_though_they_do_not_show_it) {
  geom_multitext text = labelled(u"\u00b7\ta\\P\u00b7\tb");
  marks::update_numberings(text.marks, marks::default_letters());
  EXPECT_EQ(labels_of(text)[1]->indices, (levels{{2, 3, 0}}));
}

TEST(UpdateNumberings, a_list_that_starts_deep_has_1_at_the_levels_that_were_never_counted) {
  EXPECT_EQ(renumbered(u"5.5.\ta\\P1.\tb"), "1.1.>a|2.>b");
}

TEST(UpdateNumberings, goes_by_the_order_of_the_marks) {
  geom_multitext text = decoded(u"abcdef");
  text.marks.push_back(new marks::numbering(3, 5, {{9, 0, 0}}));
  text.marks.push_back(new marks::numbering(0, 2, {{9, 0, 0}}));
  marks::update_numberings(text.marks, marks::default_letters());
  EXPECT_EQ(labels_of(text)[0]->indices[0].value, 1u);
  EXPECT_EQ(labels_of(text)[1]->indices[0].value, 2u);
}

TEST(UpdateNumberings, a_label_of_an_alphabet_beyond_the_dictionary_is_an_error_and_what_was_counted_stays) {
  geom_multitext text = decoded(u"abcdef");
  text.marks.push_back(new marks::numbering(0, 2, {{9, 0, 0}}));
  text.marks.push_back(new marks::numbering(2, 4, {{9, 1, 3}}));
  EXPECT_THROW(marks::update_numberings(text.marks, marks::default_letters()), ensure_error);
  EXPECT_EQ(labels_of(text)[0]->indices[0].value, 1u);
  EXPECT_EQ(labels_of(text)[1]->indices[0].value, 9u);
}

TEST(UpdateNumberings, a_label_without_levels_is_an_error) {
  marks::mark_list marks;
  marks.push_back(new marks::numbering());
  EXPECT_THROW(marks::update_numberings(marks, marks::default_letters()), ensure_error);
}

TEST(UpdateNumberings, leaves_the_text_as_it_is) {
  geom_multitext text = labelled(u"7.\ta");
  marks::update_numberings(text.marks, marks::default_letters());
  EXPECT_EQ(drawn(text), "7.>a");
}

}  // namespace
}  // namespace mtext
