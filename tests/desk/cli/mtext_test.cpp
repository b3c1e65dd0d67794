#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <nlohmann/json.hpp>

#include "tests/desk/cli/program.h"

using nlohmann::json;
using testing::HasSubstr;

namespace {

/// What the program prints of a text on standard input.
std::string printed(const std::string& words, const std::string& text) {
  const ProgramRun run = runProgram("mtext " + words, text);
  EXPECT_EQ(run.exit_code, 0) << run.err;
  return run.out;
}

std::size_t lineCount(const std::string& options, const std::string& text) {
  return json::parse(printed("layout " + options, text))["lines"].size();
}

double firstAdvance(const std::string& options, const std::string& text) {
  return json::parse(printed("layout " + options, text))["lines"][0]["advance"];
}

}  // namespace

TEST(MTextPlain, prints_the_text_without_its_codes_a_line_each) {
  EXPECT_EQ(printed("plain", "{\\fArial|b1;Table}\\Pfor \\H2x;8"), "Table\nfor 8\n");
}

TEST(MTextPlain, reads_a_file_or_standard_input) {
  writeFile(scratch("note.txt"), "\\LOak\\l, 40 mm");
  EXPECT_EQ(printed("plain note.txt", "other"), "Oak, 40 mm\n");
  EXPECT_EQ(printed("plain -", "other"), "other\n");
  EXPECT_EQ(printed("plain", "other"), "other\n");
}

TEST(MTextPlain, one_line_end_at_the_end_of_the_input_is_the_pipes) {
  EXPECT_EQ(printed("plain", "oak\n"), "oak\n");
  EXPECT_EQ(printed("plain", "oak\r\n"), "oak\n");
  EXPECT_EQ(printed("plain", ""), "\n");
}

TEST(MTextParse, prints_the_parts_with_their_formats_as_json_on_one_line) {
  const std::string out = printed("parse --height 4 --font Arial", "Wei\xC3\x9F {\\Lx}\\P");
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 1);
  const json parts = json::parse(out)["parts"];
  ASSERT_EQ(parts.size(), 4U);
  EXPECT_EQ(parts[0]["text"], "Wei\xC3\x9F");
  EXPECT_EQ(parts[0]["format"]["height"], 4.0);
  EXPECT_EQ(parts[0]["format"]["font"], "Arial");
  EXPECT_EQ(parts[0]["format"]["is_shx"], false);
  EXPECT_EQ(parts[1]["count"], 1);
  EXPECT_NE(parts[2]["format"]["flags"], parts[0]["format"]["flags"]);
  EXPECT_EQ(parts[3]["type"], 5);
}

TEST(MTextParse, a_font_with_the_suffix_of_shape_fonts_is_one) {
  EXPECT_EQ(json::parse(printed("parse --font TXT.SHX", "a"))["parts"][0]["format"]["is_shx"], true);
}

TEST(MTextFormat, prints_the_string_read_and_written_back_with_one_line_feed) {
  EXPECT_EQ(printed("format", "{{plain}} text"), "plain text\n");
  EXPECT_EQ(printed("format", "a\\Pb"), "a\\Pb\n");
}

TEST(MTextFormat, what_it_wrote_stays_as_it_is) {
  const std::string once = printed("format", "\\pi1,l2;{\\H2x;\\C1;Wide} {\\fArial|b1;door}\\P\\S1/2; \\~x");
  EXPECT_THAT(once, HasSubstr("\\S1/2;"));
  EXPECT_EQ(printed("format", once), once);
}

TEST(MTextFormat, a_code_for_the_font_that_was_told_is_left_out) {
  EXPECT_THAT(printed("format", "{\\fArial|b0|i0|c0|p0;oak}"), HasSubstr("Arial"));
  EXPECT_EQ(printed("format --font Arial", "{\\fArial|b0|i0|c0|p0;oak}"), "oak\n");
}

TEST(MTextLayout, prints_lines_and_columns_as_json) {
  const json laid = json::parse(printed("layout --height 5", "one\\Ptwo"));
  ASSERT_EQ(laid["lines"].size(), 2U);
  EXPECT_EQ(laid["lines"][0]["first"], 0);
  EXPECT_EQ(laid["lines"][0]["last"], laid["lines"][1]["first"]);
  EXPECT_GT(laid["lines"][0]["y"], laid["lines"][1]["y"]);
  ASSERT_EQ(laid["columns"].size(), 1U);
  EXPECT_EQ(laid["columns"][0]["last"], 7) << "six letters and the end of a paragraph";
}

TEST(MTextLayout, lines_wrap_at_the_width) {
  const std::string text = "Table for eight, oak, oiled twice";
  EXPECT_EQ(lineCount("", text), 1U);
  EXPECT_GT(lineCount("--width 30", text), 1U);
}

TEST(MTextLayout, height_and_font_set_the_size_of_letters) {
  EXPECT_NEAR(firstAdvance("--height 5 --font 'Liberation Sans'", "Window"),
              2 * firstAdvance("--height 2.5 --font 'Liberation Sans'", "Window"), 1e-6);
  EXPECT_NE(firstAdvance("--font 'Liberation Sans'", "iiii"),
            firstAdvance("--font 'Liberation Mono'", "iiii"));
}

TEST(MTextLayout, a_font_that_the_machine_lacks_is_told_beside_the_answer) {
  for (const std::string options : {"", " --draw lacking.png"}) {
    const ProgramRun run = runProgram("mtext layout --font 'No Such Font'" + options, "oak");
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_THAT(run.err, HasSubstr("No Such Font"));
  }
  EXPECT_EQ(runProgram("mtext layout --font 'Liberation Sans'", "oak").err, "");
}

TEST(MTextLayout, draws_a_picture_instead) {
  EXPECT_EQ(printed("layout --draw text.png --width 40", "\\C1;Table\\Pfor 8"), "");
  const QImage image(QString::fromStdString(scratch("text.png").string()));
  ASSERT_FALSE(image.isNull());
  bool red = false;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) red |= image.pixelColor(x, y) == QColor(Qt::red);
  EXPECT_TRUE(red);
  EXPECT_EQ(printed("layout --draw text.svg", "x"), "");
  EXPECT_THAT(contentOf(scratch("text.svg")), HasSubstr("<svg"));
}

TEST(MText, a_megabyte_goes_through_whole) {
  std::string text, plain;
  for (int i = 0; i < 50000; ++i) {
    text += "{\\C1;Table} {}for 8 oak\\P";
    plain += "Table for 8 oak\n";
  }
  EXPECT_EQ(printed("plain", text), plain + "\n");
  EXPECT_EQ(printed("format", text), text + "\n");
  EXPECT_EQ(lineCount("--width 1000", text), 50001U);
}

TEST(MText, ends_with_2_when_it_is_called_wrongly) {
  for (const std::string words : {"", "shout", "plain --width 3", "parse --width 3", "layout --width -1",
                                  "layout --height 0", "layout --height nan", "layout --width wide",
                                  "format --draw a.png", "layout --draw a.gif", "plain a b"}) {
    EXPECT_EQ(runProgram("mtext " + words).exit_code, 2) << words;
  }
}

TEST(MText, ends_with_3_and_one_sentence_when_a_text_cannot_be_read) {
  writeFile(scratch("latin.txt"), "Wei\xDF");
  for (const std::string name : {"missing.txt", ".", "latin.txt"}) {
    const ProgramRun run = runProgram("mtext plain " + name);
    EXPECT_EQ(run.exit_code, 3) << name;
    EXPECT_THAT(run.err, HasSubstr(name));
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    EXPECT_EQ(run.out, "");
  }
}

TEST(MText, ends_with_3_when_a_picture_cannot_be_written) {
  EXPECT_EQ(runProgram("mtext layout --draw no/folder/a.png", "x").exit_code, 3);
}
