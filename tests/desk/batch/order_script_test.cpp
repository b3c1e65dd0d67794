#include "desk/batch/order_script.h"

#include <stdexcept>

#include "desk/batch/batch_options.h"
#include "desk/script/script_reader.h"
#include "tests/desk/batch/scratch_folder.h"

namespace {

using OrderScript = ScratchFolder;

std::vector<std::u16string> typed(const Script& script) {
  std::vector<std::u16string> lines;
  for (const ScriptStep& step : script) lines.push_back(std::get<TypeLine>(step.what).text);
  return lines;
}

TEST_F(OrderScript, of_a_command_line_each_word_answers_a_prompt) {
  EXPECT_EQ(typed(orderScript({.script = "TCase 'in a hurry' ''"})),
            (std::vector<std::u16string>{u"TCase", u"in a hurry", u""}));
}

TEST_F(OrderScript, a_file_is_read_as_a_script) {
  const std::string file = put("tidy.scr", "TCase\n; a remark\nUpper\n").string();
  EXPECT_TRUE(isScriptFile(file));
  EXPECT_EQ(typed(orderScript({.script = file})), (std::vector<std::u16string>{u"TCase", u"Upper"}));
}

TEST_F(OrderScript, a_bad_line_of_a_script_and_an_empty_command_line_are_refused) {
  EXPECT_THROW(orderScript({.script = put("bad.scr", "@click here\n").string()}), ScriptError);
  EXPECT_THROW(orderScript({.script = "  "}), std::invalid_argument);
}

TEST_F(OrderScript, a_replacement_is_a_command_with_its_answers) {
  EXPECT_EQ(
      typed(orderScript({.replacement = TextReplacement{.find = " a", .replace = "", .ignores_case = true}})),
      (std::vector<std::u16string>{u"TextReplace", u" a", u"", u"AnyCase"}));
  const TextReplacement expression{
      .find = "(a)", .replace = "$1", .is_expression = true, .ignores_case = true};
  EXPECT_EQ(typed(orderScript({.replacement = expression})).back(), u"AnyCaseExpression");
}

TEST_F(OrderScript, nothing_or_no_expression_to_be_found_is_refused) {
  EXPECT_THROW(orderScript({.replacement = TextReplacement{}}), std::invalid_argument);
  EXPECT_THROW(
      orderScript({.replacement = TextReplacement{.find = "(", .replace = "", .is_expression = true}}),
      std::invalid_argument);
}

}  // namespace
