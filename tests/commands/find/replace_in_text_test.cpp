#include "commands/find/replace_in_text.h"

#include <gtest/gtest.h>

#include "tests/commands/command_run.h"

namespace {

/// A multi-line text after all matches were replaced.
std::u16string replaced(const OdString& contents, const HostTextPattern& pattern,
                        std::u16string_view replacement) {
  command_run run;
  const auto text = run.addText(contents, {});
  replace_in(*text, pattern, replacement);
  return text->contents().str();
}

std::u16string replaced(const OdString& contents, std::u16string_view wanted,
                        std::u16string_view replacement) {
  return replaced(contents, HostTextPattern(wanted, {}), replacement);
}

std::u16string replaced_in_line(const OdString& string, std::u16string_view wanted,
                                std::u16string_view replacement) {
  command_run run;
  const auto text = run.addLineOfText(string, {});
  replace_in(*text, HostTextPattern(wanted, {}), replacement);
  return text->textString().str();
}

}  // namespace

TEST(ReplaceInMText, words_are_replaced) {
  EXPECT_EQ(replaced(u"Hall and hall", u"Hall", u"Room"), u"Room and hall");
}

TEST(ReplaceInMText, a_match_may_run_across_formats_and_takes_the_first_of_them) {
  EXPECT_EQ(replaced(u"a {\\C1;Ha}{\\C2;ll} b", u"Hall", u"Room"), u"a {\\C1;Room} {}b");
}

TEST(ReplaceInMText, a_match_may_begin_within_a_word) {
  EXPECT_EQ(replaced(u"kitchen", u"itch", u"ITCH"), u"kITCHen");
}

TEST(ReplaceInMText, what_is_no_match_keeps_its_format) {
  EXPECT_EQ(replaced(u"{\\C1;red} Hall {\\H2x;high}", u"Hall", u"Room"), u"{\\C1;red} {}Room {\\H2x;high}");
}

TEST(ReplaceInMText, codes_are_no_text) {
  EXPECT_EQ(replaced(u"{\\C1;C1} {\\fCourier|b0|i0|c0|p49;Courier}", u"C1", u"X"),
            u"{\\C1;X} {\\fCourier|b0|i0|c0|p49;Courier}");
}

TEST(ReplaceInMText, signs_written_as_codes_are_found_as_they_are_seen) {
  EXPECT_EQ(replaced(u"90%%d \\U+00B15", u"° ±", u" deg, "), u"90 deg, 5");
}

TEST(ReplaceInMText, braces_in_the_replacement_are_letters) {
  EXPECT_EQ(replaced(u"Hall", u"Hall", u"{a}\\P"), u"\\{a\\}\\\\P");
}

TEST(ReplaceInMText, fractions_and_line_ends_are_no_text) {
  for (const char16_t* contents : {u"a\\S1/2;b", u"a\\Pb"})
    EXPECT_EQ(replaced(contents, HostTextPattern(u"a.?b", {.is_expression = true}), u"X"), contents);
}

TEST(ReplaceInMText, a_fraction_beside_a_match_stays) {
  EXPECT_EQ(replaced(u"Hall {\\H0.7x;\\S1/2;}", u"Hall", u"Room"), u"Room {\\H0.7x;\\S1/2;}");
}

TEST(ReplaceInMText, a_text_without_a_match_keeps_its_spelling) {
  const OdString odd = u"{{\\C1;a}{\\C1;b}}%%D";
  EXPECT_EQ(replaced(odd, u"x", u"y"), odd.str());
}

TEST(ReplaceInMText, an_empty_replacement_takes_the_match_away) {
  EXPECT_EQ(replaced(u"a Hall b", u" Hall", u""), u"a b");
}

TEST(ReplaceInMText, groups_of_an_expression_stand_in_the_replacement) {
  EXPECT_EQ(replaced(u"12 mm, 7 mm", HostTextPattern(u"(\\d+) mm", {.is_expression = true}), u"$1 cm"),
            u"12 cm, 7 cm");
}

TEST(ReplaceInMText, one_match_alone_can_be_replaced) {
  command_run run;
  const auto text = run.addText(u"a a a", {});
  const HostTextPattern pattern(u"a", {});
  EXPECT_EQ(count_matches(*text, pattern), 3u);
  EXPECT_EQ(replace_in(*text, pattern, u"b", 1), 1u);
  EXPECT_EQ(text->contents().str(), u"a b a");
}

TEST(ReplaceInLine, words_are_replaced) {
  EXPECT_EQ(replaced_in_line(u"Hall and hall", u"Hall", u"Room"), u"Room and hall");
}

TEST(ReplaceInLine, signs_written_as_codes_are_found_as_they_are_seen) {
  EXPECT_EQ(replaced_in_line(u"%%c20 %%p0.5", u"∅20", u"d20"), u"d20 %%p0.5");
}

TEST(ReplaceInLine, codes_that_turn_lines_on_and_off_stay) {
  EXPECT_EQ(replaced_in_line(u"%%uHa%%ull", u"Hall", u"Room"), u"%%uRoom%%u");
  EXPECT_EQ(replaced_in_line(u"%%u", u"u", u"x"), u"%%u");
}

TEST(ReplaceInLine, the_marker_of_a_field_is_no_text_and_one_without_a_number_is) {
  EXPECT_EQ(replaced_in_line(u"F%<\\_FldIdx 0>%F", u"F", u"G"), u"G%<\\_FldIdx 0>%G");
  EXPECT_EQ(replaced_in_line(u"F%<\\_FldIdx n>%F", u"n>", u"m>"), u"F%<\\_FldIdx m>%F");
}

TEST(ReplaceInLine, a_justified_text_stays_on_its_point) {
  command_run run;
  const auto text = run.addLineOfText(u"Hall", {});
  text->setHorizontalMode(OdDb::kTextRight);
  text->setAlignmentPoint({50, 5, 0});
  text->adjustAlignment();
  replace_in(*text, HostTextPattern(u"Hall", {}), u"Hall and stairs");
  OdArray<OdGePoint3d> corners;
  text->getBoundingPoints(corners);
  EXPECT_NEAR(corners[1].x, 50, 1e-9);
  EXPECT_LT(text->position().x, 40);
}
