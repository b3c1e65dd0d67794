#include "commands/letter_case/letter_case.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::u16string changed(std::u16string_view text, case_mode mode) {
  case_state state(mode);
  return in_case(text, state);
}

}  // namespace

TEST(LetterCase, sentence_mode_opens_each_sentence_with_an_upper_case_letter) {
  EXPECT_EQ(changed(u"HELLO WORLD. FOO", case_mode::sentence), u"Hello world. Foo");
  EXPECT_EQ(changed(u"what? no! yes", case_mode::sentence), u"What? No! Yes");
}

TEST(LetterCase, a_sentence_waits_for_its_first_letter) {
  EXPECT_EQ(changed(u"... 12 mm", case_mode::sentence), u"... 12 Mm");
}

TEST(LetterCase, title_mode_opens_a_word_behind_everything_that_is_no_letter) {
  EXPECT_EQ(changed(u"hello-world 2nd", case_mode::title), u"Hello-World 2Nd");
  EXPECT_EQ(changed(u"don't", case_mode::title), u"Don'T");
}

TEST(LetterCase, lower_and_upper_change_every_letter) {
  EXPECT_EQ(changed(u"Hall 1a", case_mode::upper), u"HALL 1A");
  EXPECT_EQ(changed(u"Hall 1A", case_mode::lower), u"hall 1a");
}

TEST(LetterCase, toggle_twice_gives_the_text_back) {
  EXPECT_EQ(changed(u"hELLO wORLD 1", case_mode::toggle), u"Hello World 1");
  EXPECT_EQ(changed(changed(u"Ab, cD", case_mode::toggle), case_mode::toggle), u"Ab, cD");
}

TEST(LetterCase, letters_of_all_scripts_count) {
  EXPECT_EQ(changed(u"ПЛАН ЭТАЖА", case_mode::sentence), u"План этажа");
  EXPECT_EQ(changed(u"größe", case_mode::upper), u"GRÖßE");
}

TEST(LetterCase, control_sequences_of_single_line_text_are_letters_like_all_others) {
  EXPECT_EQ(changed(u"30%%d", case_mode::upper), u"30%%D");
}

TEST(LetterCase, one_unit_becomes_one_unit) {
  const std::u16string emoji = u"a\U0001F600b";
  EXPECT_EQ(changed(emoji, case_mode::upper), u"A\U0001F600B");
}
