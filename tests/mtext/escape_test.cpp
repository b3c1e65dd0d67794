#include "mtext/escape.h"

#include <gtest/gtest.h>

using namespace mtext;

TEST(EscapeMtext, line_feeds_become_paragraph_ends_or_vanish) {
  EXPECT_EQ(escape_mtext(u"a\r\nb", true), u"a\\Pb");
  EXPECT_EQ(escape_mtext(u"a\r\nb", false), u"ab");
}

TEST(EscapeMtext, braces_and_backslashes_get_a_backslash) {
  EXPECT_EQ(escape_mtext(u"{x}\\", true), u"\\{x\\}\\\\");
}

TEST(EscapeMtext, blanks_percent_and_symbols_are_not_touched) {
  EXPECT_EQ(escape_mtext(u"%%d \u00B0\u00B1\u2205", true), u"%%d \u00B0\u00B1\u2205");
  EXPECT_EQ(escape_mtext(u"", true), u"");
}

TEST(UnformatMtext, codes_and_groups_vanish_and_paragraphs_become_line_ends) {
  EXPECT_EQ(unformat_mtext(u"{\\H2x;a}\\Pb"), u"a\r\nb");
}

TEST(UnformatMtext, a_run_of_two_blanks_comes_out_as_one) { EXPECT_EQ(unformat_mtext(u"a  b"), u"a b"); }

TEST(UnformatMtext, stacks_blanks_and_symbols_become_their_text) {
  EXPECT_EQ(unformat_mtext(u"\\S1/2;"), u"1/2");
  EXPECT_EQ(unformat_mtext(u"\\~"), u" ");
  EXPECT_EQ(unformat_mtext(u"%%c"), u"\u2205");
}

TEST(UnformatMtext, an_unknown_code_is_kept) { EXPECT_EQ(unformat_mtext(u"\\Z"), u"\\Z"); }

TEST(UnformatMtext, a_broken_code_unit_cuts_the_text_short) { EXPECT_EQ(unformat_mtext(u"ab\\U+1"), u"ab"); }

TEST(UnformatMtext, the_form_for_database_strings_gives_the_same) {
  EXPECT_EQ(UnformatMText(u"{\\C1;a}\\~b"), OdString(u"a b"));
}
