#include "commands/letter_case/case_of_contents.h"

#include <gtest/gtest.h>

#include "tests/mtext/stub_finder.h"

namespace {

std::u16string changed(const std::u16string& contents, case_mode mode) {
  return case_of_contents(contents, 2.5, mode, mtext::stub_finder(), mtext::marks::default_letters());
}

}  // namespace

TEST(CaseOfContents, a_height_keeps_its_group_and_only_letters_change) {
  EXPECT_EQ(changed(u"{\\H2x;hELLO} wORLD", case_mode::toggle), u"{\\H2x;Hello\\H0.5x; {}World}");
}

TEST(CaseOfContents, a_sentence_runs_on_across_parts) {
  EXPECT_EQ(changed(u"a. {b}", case_mode::sentence), u"{\\H1x;A. B}");
}

TEST(CaseOfContents, both_texts_of_a_stack_change) {
  EXPECT_EQ(changed(u"\\Sab/cd;", case_mode::upper), u"{\\H1.4286x;{\\H0.7x;\\SAB/CD;}}");
}

TEST(CaseOfContents, text_without_formats_comes_out_in_a_group) {
  EXPECT_EQ(changed(u"hall", case_mode::upper), u"{\\H1x;HALL}");
}

TEST(CaseOfContents, labels_stay_and_open_a_sentence) {
  EXPECT_EQ(changed(u"a.\tALPHA\\Pb.\tBETA", case_mode::sentence), u"{\\H1x;a.\tAlpha\\Pb.\tBeta}");
}

TEST(CaseOfContents, a_field_keeps_its_code_and_counts_as_a_blank) {
  EXPECT_EQ(changed(u"see %<\\AcVar Filename>%, or ask", case_mode::title),
            u"{\\H1x;See %<\\AcVar Filename>%, Or Ask}");
  EXPECT_EQ(changed(u"a%<\\AcVar Date>%b", case_mode::title), u"{\\H1x;A%<\\AcVar Date>%B}");
  EXPECT_EQ(changed(u"a%<\\AcVar Date>%b", case_mode::sentence), u"{\\H1x;A%<\\AcVar Date>%b}");
}

TEST(CaseOfLine, the_marker_of_a_field_stays_and_counts_as_a_blank) {
  EXPECT_EQ(case_of_line(u"see %<\\_FldIdx 0>%end", case_mode::title), u"See %<\\_FldIdx 0>%End");
}

TEST(CaseOfLine, a_marker_without_a_number_is_text) {
  EXPECT_EQ(case_of_line(u"see %<\\_FldIdx x>% end", case_mode::upper), u"SEE %<\\_FLDIDX X>% END");
}
