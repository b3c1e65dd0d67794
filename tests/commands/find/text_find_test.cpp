#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/find/text_find_command.h"
#include "host/selection_set.h"
#include "tests/commands/command_run.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

/// Three texts to search, and what the user answers.
struct finding {
  command_run run;
  std::vector<OdDbObjectId> texts;

  finding() {
    texts.push_back(run.addLineOfText(u"Hall 1", {0, 0, 0})->objectId());
    texts.push_back(run.addText(u"{\\C1;hall} and Hall", {0, 50, 0})->objectId());
    texts.push_back(run.addLineOfText(u"Stairs", {0, 100, 0})->objectId());
  }

  int answer(std::initializer_list<std::u16string_view> lines) {
    for (const std::u16string_view line : lines) run.application.input().line(line);
    return run.run<CTextFindCmd>();
  }

  std::u16string contents(std::size_t index) {
    const OdDbObjectPtr object = texts[index].openObject();
    if (const auto text = odCast<OdDbMText>(object)) return text->contents().str();
    return odCast<OdDbText>(object)->textString().str();
  }

  const std::vector<std::u16string>& lines() { return run.application.log().lines(); }
};

}  // namespace

TEST(TextFind, replaces_all_in_both_kinds_of_text) {
  finding find;
  EXPECT_EQ(find.answer({u"Hall", u"All", u"Room"}), kCommandDone);
  EXPECT_EQ(find.contents(0), u"Room 1");
  EXPECT_EQ(find.contents(1), u"{\\C1;hall} {}and Room");
  EXPECT_THAT(find.lines(), Contains(u"2 replaced in 2 texts"));
}

TEST(TextFind, shows_one_match_after_the_other) {
  finding find;
  EXPECT_EQ(find.answer({u"Hall", u"", u"eXit"}), kCommandDone);
  EXPECT_THAT(find.run.application.document().pickFirst().ids(), ElementsAre(find.texts[1]));
}

TEST(TextFind, begins_anew_behind_the_last_match) {
  finding find;
  EXPECT_EQ(find.answer({u"Hall", u"Next", u"Next", u"eXit"}), kCommandDone);
  EXPECT_THAT(find.lines(), Contains(u"From the beginning"));
  EXPECT_THAT(find.run.application.document().pickFirst().ids(), ElementsAre(find.texts[0]));
}

TEST(TextFind, replaces_the_match_that_is_shown_and_goes_on) {
  finding find;
  EXPECT_EQ(find.answer({u"Hall", u"Next", u"Replace", u"Room", u"eXit"}), kCommandDone);
  EXPECT_EQ(find.contents(0), u"Hall 1");
  EXPECT_EQ(find.contents(1), u"{\\C1;hall} {}and Room");
}

TEST(TextFind, a_replacement_that_holds_the_pattern_is_not_looked_at_again) {
  finding find;
  EXPECT_EQ(find.answer({u"Hall", u"Replace", u"Hall Hall", u"Replace", u"eXit"}), kCommandDone);
  EXPECT_EQ(find.contents(0), u"Hall Hall 1");
  EXPECT_EQ(find.contents(1), u"{\\C1;hall} {}and Hall Hall");
}

TEST(TextFind, case_may_be_ignored) {
  finding find;
  EXPECT_EQ(find.answer({u"HALL", u"Case", u"All", u"Room"}), kCommandDone);
  EXPECT_EQ(find.contents(1), u"{\\C1;Room} {}and Room");
  find.answer({u"HALL", u"Case", u"eXit"});  // as it was before
  EXPECT_THAT(find.lines(), Contains(u"Case counts"));
}

TEST(TextFind, an_expression_may_be_looked_for) {
  finding find;
  EXPECT_EQ(find.answer({u"\\w+ \\d", u"Expression", u"All", u"<$0>"}), kCommandDone);
  EXPECT_EQ(find.contents(0), u"<Hall 1>");
  find.answer({u"x", u"Expression", u"eXit"});
}

TEST(TextFind, what_is_no_expression_is_told_and_taken_as_it_stands) {
  finding find;
  EXPECT_EQ(find.answer({u"(", u"Expression", u"eXit"}), kCommandDone);
  EXPECT_THAT(find.lines(), Contains(u"\"(\" is no regular expression (U_REGEX_MISMATCHED_PAREN)."));
}

TEST(TextFind, only_selected_texts_are_searched_where_some_are_selected) {
  finding find;
  find.run.select(find.texts[1]);
  EXPECT_EQ(find.answer({u"Hall", u"All", u"Room"}), kCommandDone);
  EXPECT_EQ(find.contents(0), u"Hall 1");
  EXPECT_EQ(find.contents(1), u"{\\C1;hall} {}and Room");
}

TEST(TextFind, a_cancel_at_any_prompt_changes_nothing) {
  for (const std::vector<std::u16string_view>& before :
       {std::vector<std::u16string_view>{}, {u"Hall"}, {u"Hall", u"All"}}) {
    finding find;
    for (const std::u16string_view line : before) find.run.application.input().line(line);
    find.run.application.input().cancel();
    find.run.run<CTextFindCmd>();
    EXPECT_EQ(find.contents(0), u"Hall 1");
    EXPECT_EQ(find.contents(1), u"{\\C1;hall} and Hall");
  }
}

TEST(TextFind, nothing_found_is_told_and_there_is_nothing_to_replace) {
  finding find;
  EXPECT_EQ(find.answer({u"zebra", u"Replace", u""}), kCommandDone);
  EXPECT_THAT(find.lines(), Contains(u"0 matches in 0 texts"));
  EXPECT_THAT(find.lines(), Contains(u"There is nothing to replace"));
}

TEST(TextFind, texts_of_a_locked_layer_are_left_alone) {
  finding find;
  find.run.lockLayer();
  EXPECT_EQ(find.answer({u"Hall", u"All", u"Room"}), kCommandDone);
  EXPECT_EQ(find.contents(0), u"Hall 1");
}
