#include "mtext/serialize.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace mtext;

namespace {

const format::string base = {.height = 2.5};

/// A text under construction; every part is in the base format unless told otherwise.
struct text_of : multitext {
  text_of& word(const std::u16string& text, const format::string& f = base) {
    parts.push_back(new string(f, text));
    return *this;
  }
  text_of& blanks(std::uint32_t count, const format::string& f = base) {
    parts.push_back(new spaces(f, count));
    return *this;
  }
  text_of& next(const format::paragraph& p, bool column_break = false) {
    parts.push_back(new new_paragraph(p, base, column_break));
    return *this;
  }
  std::u16string written() const { return serialize(*this, base, 2.5); }
};

format::string with_color(std::uint16_t index) {
  auto format = base;
  format.color = {.kind = 0, .index = index};
  return format;
}

format::string with_font(const std::u16string& name, bool is_shx = false) {
  auto format = base;
  format.font = name;
  format.is_shx = is_shx;
  return format;
}

}  // namespace

TEST(Serialize, an_empty_text_with_a_default_paragraph_is_the_empty_string) {
  EXPECT_EQ(text_of().written(), u"");
}

TEST(Serialize, a_text_whose_parts_all_equal_the_base_has_no_braces) {
  EXPECT_EQ(text_of().word(u"ab").blanks(1).word(u"cd").written(), u"ab cd");
}

TEST(Serialize, what_differs_from_the_base_stands_in_a_group) {
  EXPECT_EQ(text_of().word(u"a").word(u"b", {.height = 5.0}).word(u"c").written(), u"a{\\H2x;b}c");
}

TEST(Serialize, a_font_is_put_back_by_the_end_of_its_group) {
  auto text = text_of().word(u"x", with_font(u"Arial")).word(u"y", with_color(1)).word(u"z");

  EXPECT_EQ(text.written(), u"{\\fArial|b0|i0|c0|p0;x}{\\C1;y}z");
}

TEST(Serialize, formats_without_a_font_change_share_a_group) {
  EXPECT_EQ(text_of().word(u"a", with_color(1)).word(u"b", with_color(2)).written(), u"{\\C1;a\\C2;b}");
}

TEST(Serialize, a_new_group_behind_a_font_fills_a_font_code_from_the_part_before_it) {
  auto bold = with_font(u"Arial");
  bold.flags = format::flag_bold;
  auto plain = with_color(1);

  EXPECT_EQ(text_of().word(u"a", bold).word(u"b", plain).written(), u"{\\fArial|b1|i0|c0|p0;a}{\\C1;b}");
}

TEST(Serialize, a_difference_below_the_tolerance_gives_an_empty_pair_of_braces) {
  auto nearly = base;
  nearly.width_factor = 1.00001;

  EXPECT_EQ(text_of().word(u"a", nearly).written(), u"{a}");
}

TEST(Serialize, a_part_list_that_ends_inside_a_group_gets_its_closing_brace) {
  EXPECT_EQ(text_of().word(u"a", with_color(1)).written(), u"{\\C1;a}");
}

TEST(Serialize, a_blank_at_the_start_is_kept_apart_from_the_word_behind_it) {
  EXPECT_EQ(text_of().blanks(1).word(u"word").written(), u" {}word");
}

TEST(Serialize, format_codes_alone_keep_a_leading_blank_apart_from_a_word) {
  EXPECT_EQ(text_of().blanks(1).word(u"word", {.height = 5.0}).written(), u" {\\H2x;word}");
}

TEST(Serialize, words_behind_the_first_are_not_kept_apart) {
  EXPECT_EQ(text_of().word(u"a").blanks(1).word(u"b").written(), u"a b");
}

TEST(Serialize, a_blank_at_the_start_of_each_paragraph_is_kept_apart) {
  EXPECT_EQ(text_of().word(u"a").next({}).blanks(1).word(u"b").written(), u"a\\P {}b");
}

TEST(Serialize, a_blank_inside_a_word_does_not_break) {
  EXPECT_EQ(text_of().word(u"a b").written(), u"a\\~b");
}

TEST(Serialize, a_run_of_three_blanks_is_written_as_one) { EXPECT_EQ(text_of().blanks(3).written(), u" "); }

TEST(Serialize, symbols_and_codes_in_a_word_are_escaped_and_percent_is_not) {
  EXPECT_EQ(text_of().word(u"\u00B0\u00B1\u2205\\{}%%d").written(), u"%%d%%p%%c\\\\\\{\\}%%d");
}

TEST(Serialize, plain_spaces_leave_the_blanks_of_a_word) {
  std::u16string out;
  serialize_state state;
  format::paragraph paragraph;
  auto current = base;
  bool px_written = false;

  EXPECT_TRUE(serialize(out, 2.5, paragraph, base, current, state, string(base, u"a b"), px_written, true));

  EXPECT_EQ(out, u"a b");
}

TEST(Serialize, the_operands_of_a_stack_are_copied_as_they_are) {
  text_of text;
  text.parts.push_back(new stack(base, u"1/", u"{2}", 1));
  text.parts.push_back(new stack(base, u"a", u"b", 7));

  EXPECT_EQ(text.written(), u"{\\H0.7x;\\S1/^{2};}{\\H0.7x;\\Sab;}");
}

TEST(Serialize, a_field_is_written_in_its_markers) {
  text_of text;
  text.parts.push_back(new field(base, u"\\_FldIdx 0"));

  EXPECT_EQ(text.written(), u"%<\\_FldIdx 0>%");
}

TEST(Serialize, all_codes_stand_in_their_fixed_order) {
  format::string format = {.height = 5.0,
                           .height_kind = 1,
                           .font = u"Arial",
                           .pitch = 34,
                           .flags = format::flag_italic | format::flag_underline | format::flag_overline,
                           .charset = 204,
                           .align = 2,
                           .color = {.kind = 1, .top = 0, .red = 1, .green = 2, .blue = 3},
                           .width_factor = 0.8,
                           .oblique = 0.2617993877991494,
                           .tracking = 1.2};

  EXPECT_EQ(text_of().word(u"a", format).written(),
            u"{\\H2x;\\fArial|b0|i1|c204|p34;\\L\\O\\c197121;\\W0.8;\\Q15;\\T1.2;\\A2;a}");
}

TEST(Serialize, a_change_from_a_typeface_to_a_shape_font_writes_the_character_set_alone) {
  auto shape = with_font(u"txt.shx", /*is_shx=*/true);
  auto text = text_of().word(u"a", with_font(u"Arial")).word(u"b", shape);

  EXPECT_EQ(text.written(), u"{\\fArial|b0|i0|c0|p0;a\\Ftxt|c0;b}");
}

TEST(Serialize, the_name_of_a_shape_font_under_four_characters_is_out_of_range) {
  std::u16string out = u"before";
  serialize_state state;
  format::paragraph paragraph;
  auto current = base;
  bool px_written = false;
  string part(with_font(u"txt", /*is_shx=*/true), u"a");

  try {
    serialize(out, 2.5, paragraph, base, current, state, part, px_written, false);
    FAIL() << "the name was taken";
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "invalid string position");
  }
  EXPECT_EQ(out, u"before");
}

TEST(SerializeParagraph, paragraphs_equal_to_their_predecessor_give_a_bare_code) {
  text_of text;
  text.paragraph = {.left = 2.0};
  text.word(u"a").next({.left = 2.0}).word(u"b").next({.left = 2.0}, /*column_break=*/true).word(u"c");

  EXPECT_EQ(text.written(), u"\\pxl2;a\\Pb\\Nc");
}

TEST(SerializeParagraph, a_change_to_0_is_written) {
  EXPECT_EQ(text_of().next({.indent = 1.0}).next({}).written(), u"\\P\\pxi1;\\P\\pi0;");

  text_of text;
  text.paragraph = {.indent = 1.0};
  EXPECT_EQ(text.next({}).written(), u"\\pxi1;\\P\\pi0;");
}

TEST(SerializeParagraph, a_zero_keeps_its_sign) {
  text_of text;
  text.paragraph = {.left = 2};

  EXPECT_EQ(text.next({.left = -0.0}).written(), u"\\pxl2;\\P\\pl-0;");
}

TEST(SerializeParagraph, the_first_code_of_all_is_a_px_even_for_a_change_to_0) {
  std::u16string out;
  serialize_state state;
  format::paragraph current_paragraph = {.indent = 1.0};
  auto current = base;
  bool px_written = false;

  serialize(out, 2.5, current_paragraph, base, current, state, new_paragraph({}, base, false), px_written,
            false);

  EXPECT_EQ(out, u"\\P\\pxi0;");
  EXPECT_TRUE(px_written);
}

TEST(SerializeParagraph, lengths_in_drawing_units_are_written_as_multiples) {
  text_of text;
  text.paragraph = {.relative = false, .indent = 5.0};

  EXPECT_EQ(text.written(), u"\\pxi2;");
}

TEST(SerializeParagraph, the_first_paragraph_sorts_its_tabs_and_a_later_one_does_not) {
  std::vector<format::tab_stop> tabs = {{8.0}, {4.0}};
  text_of first;
  first.paragraph.tabs = tabs;

  EXPECT_EQ(first.written(), u"\\pxt4,8;");
  EXPECT_EQ(text_of().next({.tabs = tabs}).written(), u"\\P\\pxt8,4;");
}

TEST(SerializeParagraph, a_list_that_was_emptied_is_a_z) {
  text_of text;
  text.paragraph.tabs = {{4.0, 1}, {8.0, 3, u','}};

  EXPECT_EQ(text.next({}).written(), u"\\pxtc4,D,8;\\P\\ptz;");
}

TEST(SerializeParagraph, commas_stand_between_lengths_and_before_tabs_only) {
  text_of text;
  text.paragraph = {.indent = 1.0, .left = 2.0, .alignment = 4, .spacing = {3, 1.5}, .tabs = {{4.0, 2}}};

  EXPECT_EQ(text.written(), u"\\pxi1,l2qjsm1.5,tr4;");
}

TEST(SerializeParagraph, tabs_have_six_digits_unless_a_number_stands_before_them) {
  text_of alone, behind_a_length, behind_a_spacing;
  alone.paragraph.tabs = behind_a_length.paragraph.tabs = behind_a_spacing.paragraph.tabs = {{1.2345678}};
  behind_a_length.paragraph.left = 1.2345678;
  behind_a_spacing.paragraph.spacing = {2, 3.0};

  EXPECT_EQ(alone.written(), u"\\pxt1.23457;");
  EXPECT_EQ(behind_a_length.written(), u"\\pxl1.2346,t1.2346;");
  EXPECT_EQ(behind_a_spacing.written(), u"\\pxse3t1.2346;");
}

TEST(SerializeParagraph, a_change_back_to_no_alignment_and_no_spacing_is_a_star) {
  text_of text;
  text.paragraph = {.alignment = 2, .spacing = {1, 2.0}};

  EXPECT_EQ(text.next({}).written(), u"\\pxqcsa2;\\P\\pq*s*;");
}

TEST(SerializeNumbers, have_five_significant_digits_in_general_notation) {
  auto written = [](double ratio) { return text_of().word(u"a", {.height = 2.5 * ratio}).written(); };

  EXPECT_EQ(written(2.0 / 3.0), u"{\\H0.66667x;a}");
  EXPECT_EQ(written(1 / 0.7), u"{\\H1.4286x;a}");
  EXPECT_EQ(written(1234567.0), u"{\\H1.2346e+06x;a}");
  EXPECT_EQ(written(-0.0), u"{\\H-0x;a}");
}
