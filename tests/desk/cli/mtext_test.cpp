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

TEST(MTextLayout, a_picture_has_the_size_that_was_told) {
  EXPECT_EQ(printed("layout --draw sized.png --size 320x200", "Table"), "");
  EXPECT_EQ(QImage(QString::fromStdString(scratch("sized.png").string())).size(), QSize(320, 200));
}

TEST(MTextStyle, sets_what_the_options_set_and_they_go_before_it) {
  writeFile(scratch("style.json"), R"({"height": 5, "width": 30, "font": "Liberation Mono"})");
  const std::string text = "Table for eight, oak, oiled twice";
  EXPECT_EQ(printed("layout --style style.json", text),
            printed("layout --height 5 --width 30 --font 'Liberation Mono'", text));
  EXPECT_EQ(printed("layout --style style.json --width 0 --height 2.5 --font 'Liberation Sans'", text),
            printed("layout --font 'Liberation Sans'", text));
}

TEST(MTextStyle, is_the_format_of_text_without_codes) {
  writeFile(scratch("style.json"),
            R"({"font": "Arial", "pitch": 34, "charset": 2, "flags": 5, "oblique": 0.25,
      "width_factor": 0.8, "tracking": 1.5, "align": 1, "color": {"index": 3}})");
  const json format = json::parse(printed("parse --style style.json", "oak"))["parts"][0]["format"];
  EXPECT_EQ(format,
            json::parse(R"({"height": 2.5, "height_kind": 0, "font": "Arial", "pitch": 34, "charset": 2,
      "is_shx": false, "flags": 5, "color": {"kind": 0, "index": 3}, "width_factor": 0.8, "oblique": 0.25,
      "tracking": 1.5, "align": 1})"));
  EXPECT_EQ(printed("format --style style.json", "{\\C3;oak} {\\C1;elm}"), "oak {\\C1;elm}\n");
}

TEST(MTextStyle, a_true_colour_is_told_by_its_bytes) {
  writeFile(scratch("style.json"), R"({"color": {"red": 1, "green": 2, "blue": 3, "top": 0}})");
  EXPECT_EQ(json::parse(printed("parse --style style.json", "oak"))["parts"][0]["format"]["color"],
            json::parse(R"({"kind": 1, "top": 0, "red": 1, "green": 2, "blue": 3})"));
}

TEST(MTextStyle, fills_columns_and_spaces_and_aligns_lines) {
  writeFile(scratch("style.json"), R"({"height": 10, "alignment": 3, "spacing": {"style": 2, "value": 2},
      "columns": {"width": 100, "gutter": 20, "kind": 2, "heights": [40]}})");
  const json laid = json::parse(printed("layout --style style.json", "one\\Ptwo\\Pthree"));
  ASSERT_EQ(laid["columns"].size(), 3U) << "each line is 33 high, and a column holds no second one";
  EXPECT_EQ(laid["columns"][2]["x"], 240.0);
  EXPECT_EQ(laid["lines"][0]["y"], -20.0);
  EXPECT_GT(laid["lines"][0]["x"], 50.0);
}

TEST(MTextStyle, is_drawn_too) {
  writeFile(scratch("style.json"), R"({"height": 10, "color": {"index": 1}})");
  EXPECT_EQ(printed("layout --style style.json --draw styled.png --size 200x100", "MMM"), "");
  const QImage image(QString::fromStdString(scratch("styled.png").string()));
  ASSERT_FALSE(image.isNull());
  bool red = false;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) red |= image.pixelColor(x, y) == QColor(Qt::red);
  EXPECT_TRUE(red);
}

TEST(MTextStyle, one_set_of_options_serves_every_action_of_a_pipe) {
  writeFile(scratch("style.json"), R"({"width": 30})");
  for (const std::string action : {"plain", "parse", "format", "layout"})
    EXPECT_NE(printed(action + " --style style.json --height 5 --width 60 --font Arial", "oak"), "")
        << action;
}

TEST(MTextStyle, that_is_wrong_ends_with_3_and_a_sentence_that_names_line_or_member) {
  const std::vector<std::pair<std::string, std::string>> wrong = {
      {"{\n  \"height\": 5,\n  \"width\" 3\n}", "style.json: line 3, column 11 is no JSON."},
      {"", "style.json: line 1, column 1 is no JSON."},
      {"[1]", "style.json: a style must be one JSON object."},
      {R"({"height": 1e999})", "style.json: it holds a number beyond all numbers."},
      {R"({"colour": 1})", "style.json: \"colour\" is no member of a style."},
      {R"({"height": 0})", "style.json: \"height\" must be a number from 1e-06 to 1e+09."},
      {R"({"height": "tall"})", "style.json: \"height\" must be a number from 1e-06 to 1e+09."},
      {R"({"flags": -1})", "style.json: \"flags\" must be a whole number from 0 to 15."},
      {R"({"font": 3})", "style.json: \"font\" must be a text."},
      {R"({"is_shx": 1})", "style.json: \"is_shx\" must be true or false."},
      {R"({"font": "txt", "is_shx": true})",
       "style.json: \"is_shx\" is true, so \"font\" must be a file that ends in .shx."},
      {R"({"spacing": 2})", "style.json: \"spacing\" must be an object."},
      {R"({"spacing": {"value": -1}})", "style.json: \"spacing.value\" must be a number from 0 to 1e+09."},
      {R"({"columns": {"heights": []}})",
       "style.json: \"columns.heights\" must be a list of 1 to 1000 numbers from 0 to 1e+09."}};
  for (const auto& [content, sentence] : wrong) {
    writeFile(scratch("style.json"), content);
    const ProgramRun run = runProgram("mtext plain --style style.json", "oak");
    EXPECT_EQ(run.exit_code, 3) << content;
    EXPECT_EQ(run.err, sentence + "\n");
    EXPECT_EQ(run.out, "");
  }
  EXPECT_EQ(runProgram("mtext plain --style -", "oak").exit_code, 3);
  EXPECT_EQ(runProgram("mtext plain --style missing.json", "oak").err,
            "missing.json: the style cannot be read.\n");
}

TEST(MTextStyle, nested_without_end_is_refused_and_not_followed) {
  writeFile(scratch("style.json"), "{\"columns\": " + std::string(1000000, '['));
  const ProgramRun run = runProgram("mtext layout --style style.json", "oak");
  EXPECT_EQ(run.exit_code, 3);
  EXPECT_THAT(run.err, HasSubstr("is no JSON."));
}

TEST(MText, a_reader_that_goes_away_ends_it_quietly) {
  writeFile(scratch("long.txt"), std::string(4000000, 'x'));
  for (const std::string action : {"plain", "parse", "format"}) {
    runProgram("mtext " + action + " long.txt 2>told | head -c 5 >shown; true");
    EXPECT_EQ(contentOf(scratch("shown")).size(), 5U) << action;
    EXPECT_EQ(contentOf(scratch("told")), "") << action;
  }
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
  for (const std::string words :
       {"", "shout", "plain --draw a.png", "parse --size 10x10", "layout --width -1", "layout --height 0",
        "layout --size 10x10", "layout --draw a.png --size 0x9", "layout --height nan", "layout --width wide",
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
