#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "mtext/escape.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "tests/docs/describe.h"
#include "tests/docs/format_code_example.h"

namespace {

std::string document() {
  std::ifstream file(SCRIBE_SOURCE_DIR "/docs/format-codes.md");
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

/// The text of every example is 2.5 high.
mtext::format::string base_format() {
  mtext::format::string base;
  base.height = 2.5;
  base.height_kind = 0;
  return base;
}

mtext::multitext read(const std::u16string& code) {
  mtext::multitext text;
  mtext::parse(code, base_format(), text, {});
  return text;
}

std::string written(const mtext::multitext& text) {
  return shown(mtext::serialize(text, base_format(), base_format().height));
}

class FormatCodes : public testing::TestWithParam<format_code_example> {};

std::string line_name(const testing::TestParamInfo<format_code_example>& info) {
  return "line_" + std::to_string(info.param.line);
}

}  // namespace

TEST_P(FormatCodes, an_example_of_the_page_is_true) {
  const format_code_example& example = GetParam();
  const std::u16string code = unshown(example.code);

  EXPECT_EQ(describe(read(code), base_format()), example.reads);
  EXPECT_EQ(shown(mtext::unformat_mtext(code.c_str())), example.plain);
  EXPECT_EQ(written(read(code)), example.again);
}

TEST_P(FormatCodes, what_is_written_reads_as_itself_from_then_on) {
  const std::u16string again = unshown(GetParam().again);

  EXPECT_EQ(written(read(again)), GetParam().again);
}

INSTANTIATE_TEST_SUITE_P(Page, FormatCodes, testing::ValuesIn(read_examples(document())), line_name);

TEST(FormatCodePage, has_an_example_of_every_code) {
  std::set<std::string> missing{R"(\P)", R"(\N)", R"(\~)", R"(\L)", R"(\l)", R"(\O)",  R"(\o)",  R"(\H)",
                                R"(\W)", R"(\Q)", R"(\T)", R"(\f)", R"(\F)", R"(\C)",  R"(\c)",  R"(\A)",
                                R"(\S)", R"(\p)", R"(\\)", R"(\{)", R"(\})", R"(\U+)", R"(\u+)", "{",
                                "}",     "%%d",   "%%p",   "%%c",   "%<",    "⏎",      "→"};

  for (const format_code_example& example : read_examples(document()))
    std::erase_if(missing, [&](const std::string& code) { return example.code.find(code) != code.npos; });

  EXPECT_TRUE(missing.empty()) << "no example of " << *missing.begin();
}

TEST(FormatCodePage, a_block_that_lacks_a_line_is_no_example) {
  EXPECT_THROW(read_examples("```mtext\ncode: a\nplain: a\nagain: a\n```\n"), std::runtime_error);
  EXPECT_THROW(read_examples("```mtext\ncode: a\nreads: \"a\"\nplain: a\nagain: a\n"), std::runtime_error);
}

TEST(FormatCodePage, shows_what_cannot_be_seen) {
  EXPECT_EQ(shown(u"a\r\nb\tc"), "a⏎b→c");
  EXPECT_EQ(unshown("a⏎b→c"), u"a\nb\tc");
}
