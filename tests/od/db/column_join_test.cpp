#include "od/db/column_join.h"

#include <gtest/gtest.h>

TEST(ColumnJoin, plain_texts_are_put_together_as_they_are) {
  EXPECT_EQ(odJoinColumns({u"one\\P", u"two\\N", u"three"}), u"one\\Ptwo\\Nthree");
  EXPECT_EQ(odJoinColumns({}), u"");
}

TEST(ColumnJoin, a_text_that_is_alone_keeps_its_spelling_whatever_it_is) {
  EXPECT_EQ(odJoinColumns({u"{\\H2x;open", u"", u""}), u"{\\H2x;open");
  EXPECT_EQ(odJoinColumns({u"", u"\\C1;red}"}), u"\\C1;red}");
}

TEST(ColumnJoin, a_format_that_is_left_open_ends_with_its_text) {
  EXPECT_EQ(odJoinColumns({u"\\H2x;tall ", u"low"}), u"{\\H2x;tall }low");
  EXPECT_EQ(odJoinColumns({u"\\Lunderlined ", u"plain"}), u"{\\Lunderlined }plain");
}

TEST(ColumnJoin, a_format_in_braces_needs_no_more_of_them) {
  EXPECT_EQ(odJoinColumns({u"{\\H2x;tall} ", u"low"}), u"{\\H2x;tall} low");
}

TEST(ColumnJoin, braces_that_are_left_open_are_closed) {
  EXPECT_EQ(odJoinColumns({u"{\\C1;{\\L", u"x"}), u"{\\C1;{\\L}}x");
}

TEST(ColumnJoin, a_brace_that_closes_nothing_is_left_out) {
  EXPECT_EQ(odJoinColumns({u"\\C1;a}b", u"x"}), u"{\\C1;a{}b}x");
}

TEST(ColumnJoin, braces_that_are_letters_open_nothing) {
  EXPECT_EQ(odJoinColumns({u"\\{a", u"b\\}", u"c"}), u"\\{ab\\}c");
  EXPECT_EQ(odJoinColumns({u"\\S{/2;", u"x"}), u"\\S{/2;x");
}

TEST(ColumnJoin, a_paragraph_behind_an_indented_one_begins_as_it_would_alone) {
  EXPECT_EQ(odJoinColumns({u"\\pxi2;first\\P", u"second"}),
            u"\\pxi2;first\\P\\pi0,l0,r0,b0,a0,q*,s*,tz;second");
  EXPECT_EQ(odJoinColumns({u"\\pxi2;first\\P", u"second\\P", u"third"}),
            u"\\pxi2;first\\P\\pi0,l0,r0,b0,a0,q*,s*,tz;second\\P\\pi0,l0,r0,b0,a0,q*,s*,tz;third");
}

TEST(ColumnJoin, a_paragraph_that_goes_on_in_the_next_column_keeps_its_indents) {
  EXPECT_EQ(odJoinColumns({u"\\pxi2;first ", u"goes on"}), u"\\pxi2;first goes on");
}

TEST(ColumnJoin, a_format_behind_the_last_break_does_not_hide_the_break) {
  EXPECT_EQ(odJoinColumns({u"\\pxl1;{\\C1;a\\P}", u"b"}), u"\\pxl1;{\\C1;a\\P}\\pi0,l0,r0,b0,a0,q*,s*,tz;b");
}

TEST(ColumnJoin, a_code_that_a_text_breaks_off_does_not_take_letters_of_the_next) {
  EXPECT_EQ(odJoinColumns({u"a\\", u"Pen"}), u"a\\\\Pen");
  EXPECT_EQ(odJoinColumns({u"a\\fArial", u"b; c"}), u"{a\\fArial;}b; c");
}

TEST(ColumnJoin, a_code_ends_where_readers_end_it_and_not_at_the_next_semicolon) {
  EXPECT_EQ(odJoinColumns({u"\\C1red", u"x; y"}), u"{\\C1red}x; y");
  EXPECT_EQ(odJoinColumns({u"\\H2x{tall\\P", u";b"}), u"{\\H2x{tall\\P}};b");
  EXPECT_EQ(odJoinColumns({u"\\S1\\;2;{", u"x"}), u"\\S1\\;2;{}x");
  EXPECT_EQ(odJoinColumns({u"\\pq;i2;a", u"x"}), u"\\pq;i2;ax");
}

TEST(ColumnJoin, codes_in_a_field_are_not_those_of_the_text) {
  EXPECT_EQ(odJoinColumns({u"%<\\AcVar Date \\f \"{M\">%", u"x"}), u"%<\\AcVar Date \\f \"{M\">%x");
}

TEST(ColumnJoin, letters_do_not_become_a_code_by_those_of_the_next_text) {
  EXPECT_EQ(odJoinColumns({u"5%", u"%d"}), u"5%{}%d");
  EXPECT_EQ(odJoinColumns({u"a %<b", u"c>%"}), u"a %{}<bc>%");
  EXPECT_EQ(odJoinColumns({u"\\C", u"5"}), u"\\\\C5");
  EXPECT_EQ(odJoinColumns({u"\\f", u"arm;"}), u"\\\\farm;");
  EXPECT_EQ(odJoinColumns({u"\\S1/\\", u"x;"}), u"\\S1/\\\\;x;");
}

TEST(ColumnJoin, a_broken_number_of_a_character_hides_nothing_behind_it) {
  EXPECT_EQ(odJoinColumns({u"a\\U+12", u"34"}), u"a\\\\U+1234");
}

TEST(ColumnJoin, a_paragraph_code_that_ends_early_says_what_it_said) {
  EXPECT_EQ(odJoinColumns({u"a\\pi1,q", u"x;y"}), u"\\pi1,;a{}x;y");
  EXPECT_EQ(odJoinColumns({u"a\\pi1,t2,D", u"x;y"}), u"\\pi1,t2;a{}x;y");
}

TEST(ColumnJoin, a_text_without_anything_visible_leaves_the_paragraph_end_before_it) {
  EXPECT_EQ(odJoinColumns({u"\\pi1;a\\P", u"{}", u"b"}),
            u"\\pi1;a\\P\\pi0,l0,r0,b0,a0,q*,s*,tz;{}\\pi0,l0,r0,b0,a0,q*,s*,tz;b");
}

TEST(ColumnJoin, a_paragraph_that_goes_on_looks_as_it_began_and_those_behind_it_as_they_would_alone) {
  EXPECT_EQ(odJoinColumns({u"\\pi1,l2;a ", u"b\\Pc"}), u"\\pi1,l2;a b\\P\\pi0,l0,r0,b0,a0,q*,s*,tz;c");
  EXPECT_EQ(odJoinColumns({u"\\pi1,l2;a ", u"\\pi0,l2;b\\Pc"}),
            u"\\pi1,l2;a b\\P\\pi0,l0,r0,b0,a0,q*,s*,tz;\\pi0,l2;c");
}
