#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/find/text_replace_command.h"
#include "tests/commands/command_run.h"

using testing::Contains;

namespace {

/// Two texts that are selected, and what a script answers.
struct replacing {
  command_run run;
  OdDbTextPtr line = run.addLineOfText(u"Hall 1", {0, 0, 0});
  OdDbMTextPtr block = run.addText(u"{\\C1;hall} and Hall", {0, 50, 0});

  int answer(std::initializer_list<std::u16string_view> lines) {
    HostSelectionSet both(line->objectId());
    both.add(block->objectId());
    release();
    run.application.document().prompt().answerSelections([both] { return both; });
    for (const std::u16string_view typed : lines) run.application.input().line(typed);
    return run.run<CTextReplaceCmd>();
  }
  const std::vector<std::u16string>& said() { return run.application.log().lines(); }

 private:
  /// The command opens them for write itself.
  void release() {
    line->downgradeOpen();
    block->downgradeOpen();
  }
};

}  // namespace

TEST(TextReplace, replaces_all_matches_in_both_kinds_of_text) {
  replacing texts;
  EXPECT_EQ(texts.answer({u"Hall", u"Room", u""}), kCommandDone);
  EXPECT_EQ(texts.line->textString().str(), u"Room 1");
  EXPECT_EQ(texts.block->contents().str(), u"{\\C1;hall} {}and Room");
  EXPECT_THAT(texts.said(), Contains(u"2 replaced in 2 texts"));
}

TEST(TextReplace, takes_either_case_and_expressions) {
  replacing texts;
  EXPECT_EQ(texts.answer({u"^H(A)LL", u"$1", u"AnyCaseExpression"}), kCommandDone);
  EXPECT_EQ(texts.line->textString().str(), u"a 1");
}

TEST(TextReplace, keeps_the_blanks_of_both_answers_even_where_there_is_nothing_else) {
  replacing texts;
  EXPECT_EQ(texts.answer({u" ", u"  ", u"Words"}), kCommandDone);
  EXPECT_EQ(texts.line->textString().str(), u"Hall  1");
}

TEST(TextReplace, takes_away_what_is_replaced_by_nothing) {
  replacing texts;
  EXPECT_EQ(texts.answer({u"Hall ", u"", u"Words"}), kCommandDone);
  EXPECT_EQ(texts.line->textString().str(), u"1");
}

TEST(TextReplace, changes_nothing_without_a_match_and_is_done) {
  replacing texts;
  EXPECT_EQ(texts.answer({u"Cellar", u"x", u"Words"}), kCommandDone);
  EXPECT_EQ(texts.line->textString().str(), u"Hall 1");
  EXPECT_THAT(texts.said(), Contains(u"0 replaced in 0 texts"));
}

TEST(TextReplace, refuses_what_is_no_expression) {
  replacing texts;
  EXPECT_EQ(texts.answer({u"(", u"x", u"Expression"}), kCommandDone);
  EXPECT_EQ(texts.run.application.document().prompt().refusals(), 1);
}

TEST(TextReplace, a_cancel_at_any_prompt_changes_nothing) {
  replacing texts;
  texts.run.application.input().line(u"Hall");
  texts.run.application.input().cancel();
  EXPECT_EQ(texts.answer({}), kCommandCancelled);
  EXPECT_EQ(texts.line->textString().str(), u"Hall 1");
}
