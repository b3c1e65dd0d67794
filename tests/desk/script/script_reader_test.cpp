#include "desk/script/script_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

template <class Step>
Step only(const Script& script) {
  EXPECT_EQ(script.size(), 1u);
  return std::get<Step>(script.at(0).what);
}

std::string refusal(std::string_view text) {
  try {
    readScript(text, "story.scr");
  } catch (const ScriptError& error) {
    return error.what();
  }
  return "accepted";
}

}  // namespace

TEST(ScriptReader, a_plain_line_is_typed_with_its_blanks) {
  EXPECT_EQ(only<TypeLine>(readScript("Zoom Extents \n", "s")).text, u"Zoom Extents ");
}

TEST(ScriptReader, an_empty_line_is_enter) { EXPECT_EQ(only<TypeLine>(readScript("\n", "s")).text, u""); }

TEST(ScriptReader, the_last_line_needs_no_end) {
  const Script script = readScript("Open\nplan.dxf", "s");
  ASSERT_EQ(script.size(), 2u);
  EXPECT_EQ(std::get<TypeLine>(script[1].what).text, u"plan.dxf");
}

TEST(ScriptReader, carriage_returns_and_a_byte_order_mark_are_no_part_of_a_line) {
  const Script script = readScript("\xEF\xBB\xBFOpen\r\n\r\n", "s");
  ASSERT_EQ(script.size(), 2u);
  EXPECT_EQ(std::get<TypeLine>(script[0].what).text, u"Open");
  EXPECT_EQ(std::get<TypeLine>(script[1].what).text, u"");
}

TEST(ScriptReader, remarks_are_skipped_and_counted) {
  const Script script = readScript("; a remark\n  ; one more\nSave\n", "s");
  ASSERT_EQ(script.size(), 1u);
  EXPECT_EQ(script[0].line, 3);
}

TEST(ScriptReader, a_click_has_a_point_and_modifiers) {
  const auto step = only<MouseStep>(readScript("@click Shift+ctrl+-1.5,2e2\n", "s"));
  EXPECT_EQ(step.action, MouseAction::click);
  EXPECT_EQ(step.x, -1.5);
  EXPECT_EQ(step.y, 200);
  EXPECT_EQ(step.held, (HeldKeys{.shift = true, .ctrl = true}));
}

TEST(ScriptReader, each_mouse_verb_is_known) {
  const Script script = readScript("@press 1,2\n@drag 3,4\n@release 5,6\n@double 7,8\n", "s");
  ASSERT_EQ(script.size(), 4u);
  EXPECT_EQ(std::get<MouseStep>(script[0].what).action, MouseAction::press);
  EXPECT_EQ(std::get<MouseStep>(script[1].what).action, MouseAction::drag);
  EXPECT_EQ(std::get<MouseStep>(script[2].what).action, MouseAction::release);
  EXPECT_EQ(std::get<MouseStep>(script[3].what).action, MouseAction::twice);
}

TEST(ScriptReader, typed_characters_keep_their_blanks_and_their_letters) {
  EXPECT_EQ(only<TypeCharacters>(readScript("@type  a;\xC3\xA4 \n", "s")).text, u" a;\u00E4 ");
}

TEST(ScriptReader, a_key_is_named_with_its_modifiers) {
  const auto step = only<PressKey>(readScript("@key Ctrl+Shift+Left\n", "s"));
  EXPECT_EQ(step.chord, (KeyChord{37, {.shift = true, .ctrl = true}}));
}

TEST(ScriptReader, waits_and_answers_are_read) {
  const Script script = readScript("@wait 400\n@answer yes\n@answer No\n@answer cancel\n", "s");
  ASSERT_EQ(script.size(), 4u);
  EXPECT_EQ(std::get<WaitStep>(script[0].what).milliseconds, 400);
  EXPECT_EQ(std::get<AnswerStep>(script[1].what).answer, ScriptAnswer::yes);
  EXPECT_EQ(std::get<AnswerStep>(script[2].what).answer, ScriptAnswer::no);
  EXPECT_EQ(std::get<AnswerStep>(script[3].what).answer, ScriptAnswer::cancel);
}

TEST(ScriptReader, the_right_button_and_the_choice_from_its_menu_are_read) {
  const Script script = readScript("@right Ctrl+1,2\n@menu  Select all \n@menu 1007\n", "s");
  ASSERT_EQ(script.size(), 3u);
  EXPECT_EQ(std::get<MouseStep>(script[0].what).action, MouseAction::right);
  EXPECT_EQ(std::get<MenuStep>(script[1].what).entry, u"Select all");
  EXPECT_EQ(std::get<MenuStep>(script[2].what).entry, u"1007");
}

TEST(ScriptReader, the_code_of_a_field_is_read_whole) {
  EXPECT_EQ(only<FieldStep>(readScript("@field  \\AcVar Date \\f \"d M\" \n", "s")).code,
            u"\\AcVar Date \\f \"d M\"");
  EXPECT_EQ(only<FieldStep>(readScript("@field\n", "s")).code, u"");
}

TEST(ScriptReader, a_bad_line_is_refused_with_file_line_and_reason) {
  EXPECT_EQ(refusal("Open\n@click here\n"), "story.scr, line 2: \"here\" is not a point such as 10,20.");
  EXPECT_EQ(refusal("@jump 1,2"), "story.scr, line 1: \"@jump\" is no step of a script.");
  EXPECT_EQ(refusal("@key Hyper"), "story.scr, line 1: \"Hyper\" names no key.");
  EXPECT_EQ(refusal("@wait -1"), "story.scr, line 1: \"-1\" is not a time in whole milliseconds.");
  EXPECT_EQ(refusal("@menu "), "story.scr, line 1: \"@menu\" names no entry of a menu.");
  EXPECT_EQ(refusal("@answer perhaps"),
            "story.scr, line 1: \"perhaps\" is not an answer; yes, no and cancel are.");
}

TEST(ScriptReader, a_point_is_two_finite_numbers_and_no_more) {
  for (const char* line : {"@click 1", "@click 1,", "@click 1,2,3", "@click nan,1", "@click inf,0", "@click"})
    EXPECT_THAT(refusal(line), testing::EndsWith("is not a point such as 10,20.")) << line;
}
