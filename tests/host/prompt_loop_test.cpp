#include "host/prompt_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>

#include "host/key_code.h"
#include "host/windowless/application.h"

namespace {

using testing::ElementsAre;

class Prompt : public testing::Test {
 protected:
  WindowlessApplication application{OdDbDatabase::createEmpty()};
  WindowlessInput& input = application.input();
  HostPromptLoop& prompt = application.document().prompt();
  OdGePoint3d point;
};

TEST_F(Prompt, a_left_press_answers_with_its_world_point) {
  input.click({3, 4, 0});
  EXPECT_EQ(prompt.getPoint({.prompt = u"Specify first corner"}, point), kAnswerValue);
  EXPECT_EQ(point, (OdGePoint3d{3, 4, 0}));
  EXPECT_THAT(application.log().lines(), ElementsAre(u"Specify first corner:"));
}

TEST_F(Prompt, a_typed_point_counts_from_the_last_one_behind_an_at_sign) {
  input.line(u"10,20");
  input.line(u"@5<90");
  prompt.getPoint({.prompt = u"From"}, point);
  EXPECT_EQ(prompt.getPoint({.prompt = u"To"}, point), kAnswerValue);
  EXPECT_TRUE(point.isEqualTo({10, 25, 0}));
}

TEST_F(Prompt, a_base_point_takes_the_place_of_the_last_one) {
  input.line(u"@1,1");
  prompt.getPoint({.prompt = u"To", .base_point = OdGePoint3d{100, 100, 0}}, point);
  EXPECT_EQ(point, (OdGePoint3d{101, 101, 0}));
}

TEST_F(Prompt, nonsense_gets_one_sentence_and_the_question_again) {
  input.line(u"over there");
  input.line(u"1,2");
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerValue);
  EXPECT_THAT(application.log().lines(),
              ElementsAre(u"Where:", u"A point is wanted here, such as 10,20 or @5<90.", u"Where:"));
}

TEST_F(Prompt, escape_at_the_command_line_and_in_the_view_cancels) {
  input.cancel();
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerCancel);
  input.key(VK_ESCAPE);
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerCancel);
}

TEST_F(Prompt, the_end_of_the_input_is_an_answer_of_its_own_and_counted) {
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerEndOfInput);
  EXPECT_EQ(prompt.unanswered(), 1);
}

TEST_F(Prompt, the_end_of_the_input_at_the_command_prompt_leaves_nothing_unanswered) {
  EXPECT_EQ(prompt.read_input(u"Command", u"", kReadCommand), kAnswerEndOfInput);
  EXPECT_EQ(prompt.unanswered(), 0);
}

TEST_F(Prompt, a_keyword_answers_with_its_number) {
  input.line(u"s");
  EXPECT_EQ(prompt.getPoint({.prompt = u"Origin", .keywords = u"Justify Style"}, point), 1);
}

TEST_F(Prompt, an_empty_line_takes_the_default) {
  double height = 0;
  input.line(u"");
  EXPECT_EQ(prompt.getReal({.prompt = u"Specify height", .default_answer = u"2.5"}, height), kAnswerValue);
  EXPECT_EQ(height, 2.5);
}

TEST_F(Prompt, a_default_may_be_a_keyword) {
  input.line(u"");
  EXPECT_EQ(prompt.getKeyword({.prompt = u"Save", .keywords = u"Yes No", .default_answer = u"No"}), 1);
  EXPECT_THAT(application.log().lines(), ElementsAre(u"Save [Yes/No] <No>:"));
}

TEST_F(Prompt, the_right_button_and_enter_in_the_view_are_an_empty_line) {
  double height = 0;
  input.message({.number = WM_RBUTTONDOWN});
  EXPECT_EQ(prompt.getReal({.prompt = u"Height", .default_answer = u"2.5"}, height), kAnswerValue);
  input.key(VK_RETURN);
  EXPECT_EQ(prompt.getReal({.prompt = u"Height", .default_answer = u"3"}, height), kAnswerValue);
  EXPECT_EQ(height, 3);
}

TEST_F(Prompt, an_empty_line_without_a_default_is_refused_unless_nothing_may_be_given) {
  input.line(u"");
  input.line(u"1,1");
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerValue);
  input.line(u"");
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where", .may_be_empty = true}, point), kAnswerNothing);
}

TEST_F(Prompt, only_keywords_answer_a_prompt_for_a_keyword) {
  input.line(u"perhaps");
  input.line(u"y");
  EXPECT_EQ(prompt.getKeyword({.prompt = u"Save", .keywords = u"Yes No"}), 0);
  EXPECT_EQ(application.log().lines()[1], u"One of these is wanted here: Yes/No.");
}

TEST_F(Prompt, characters_and_enter_in_the_view_make_a_typed_line) {
  for (const char16_t unit : std::u16string_view(u"7,,8")) input.message({.number = WM_CHAR, .code = unit});
  input.key(VK_BACK);
  input.key(VK_BACK);
  for (const char16_t unit : std::u16string_view(u"9")) input.message({.number = WM_CHAR, .code = unit});
  input.key(VK_RETURN);
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerValue);
  EXPECT_EQ(point, (OdGePoint3d{7, 9, 0}));
}

TEST_F(Prompt, half_a_line_that_a_press_made_needless_is_no_beginning_of_the_next_answer) {
  input.message({.number = WM_CHAR, .code = u'5'});
  input.click({1, 2, 0});
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerValue);
  EXPECT_EQ(point, (OdGePoint3d{1, 2, 0}));
  for (const char16_t unit : std::u16string_view(u"7,8")) input.message({.number = WM_CHAR, .code = unit});
  input.key(VK_RETURN);
  EXPECT_EQ(prompt.getPoint({.prompt = u"Where"}, point), kAnswerValue);
  EXPECT_EQ(point, (OdGePoint3d{7, 8, 0}));
}

TEST_F(Prompt, a_string_ends_at_its_first_blank_or_takes_the_whole_line) {
  std::u16string text;
  input.line(u" two words ");
  prompt.getString({.prompt = u"Name"}, false, text);
  EXPECT_EQ(text, u"two");
  input.line(u" two words ");
  prompt.getString({.prompt = u"Text"}, true, text);
  EXPECT_EQ(text, u" two words ");
}

TEST_F(Prompt, a_distance_is_a_number_or_reaches_from_the_base_point) {
  double length = 0;
  input.line(u"2.5");
  prompt.getDistance({.prompt = u"Width"}, length);
  EXPECT_EQ(length, 2.5);
  input.click({3, 4, 0});
  prompt.getDistance({.prompt = u"Width", .base_point = OdGePoint3d{0, 0, 0}}, length);
  EXPECT_EQ(length, 5);
}

TEST_F(Prompt, a_distance_without_a_base_point_takes_two_points) {
  double length = 0;
  input.line(u"1,1");
  input.click({1, 3, 0});
  EXPECT_EQ(prompt.getDistance({.prompt = u"Width"}, length), kAnswerValue);
  EXPECT_EQ(length, 2);
}

TEST_F(Prompt, an_angle_is_typed_in_degrees_or_shown_by_a_point) {
  double radians = 0;
  input.line(u"180");
  prompt.getAngle({.prompt = u"Rotation"}, radians);
  EXPECT_DOUBLE_EQ(radians, std::numbers::pi);
  input.click({0, 5, 0});
  prompt.getAngle({.prompt = u"Rotation", .base_point = OdGePoint3d{0, 0, 0}}, radians);
  EXPECT_DOUBLE_EQ(radians, std::numbers::pi / 2);
}

TEST_F(Prompt, a_point_at_the_base_shows_no_angle) {
  double radians = 7;
  input.click({1, 1, 0});
  input.line(u"90");
  prompt.getAngle({.prompt = u"Rotation", .base_point = OdGePoint3d{1, 1, 0}}, radians);
  EXPECT_DOUBLE_EQ(radians, std::numbers::pi / 2);
}

TEST_F(Prompt, a_reason_why_nothing_was_done_is_written_and_counted) {
  prompt.refuse(u"Layer locked");
  EXPECT_THAT(application.log().lines(), ElementsAre(u"Layer locked"));
  EXPECT_EQ(prompt.refusals(), 1);
}

}  // namespace
