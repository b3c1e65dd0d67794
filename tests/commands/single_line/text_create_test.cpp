#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

#include "commands/single_line/text_create_command.h"
#include "host/key_code.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "tests/commands/command_run.h"

namespace {

using testing::Contains;

constexpr HostHeldKeys::Keys kCtrl{.ctrl = true};

struct TypedText : CTextCreateCmd {
  TypedText() : CTextCreateCmd(/*in_place=*/false) {}
};

struct TextInPlace : CTextCreateCmd {
  TextInPlace() : CTextCreateCmd(/*in_place=*/true) {}
};

struct creation : command_run {
  /// What is typed at the prompt, a line each.
  void lines(std::initializer_list<std::u16string_view> typed) {
    for (const auto line : typed) application.input().line(line);
  }
  std::vector<OdDbTextPtr> texts() const {
    std::vector<OdDbTextPtr> found;
    for (const OdDbObjectId& id : entities())
      if (const auto text = odCast<OdDbText>(id.openObject())) found.push_back(text);
    return found;
  }
  const std::vector<std::u16string>& log() { return application.log().lines(); }
  /// Whether a line of the command line holds these words.
  bool tells(std::u16string_view words) {
    return std::any_of(log().begin(), log().end(),
                       [words](const std::u16string& line) { return line.find(words) != line.npos; });
  }
  OdDbTextStyleTableRecordPtr style() const {
    return odCast<OdDbTextStyleTableRecord>(database->getTEXTSTYLE().openObject(OdDb::kForWrite));
  }
};

}  // namespace

TEST(TextCreate, each_typed_line_becomes_a_text_below_the_one_before) {
  creation run;
  run.lines({u"10,20", u"3", u"0", u"one", u" two ", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  const auto made = run.texts();
  ASSERT_EQ(made.size(), 2u);
  EXPECT_EQ(made[0]->textString(), OdString(u"one"));
  EXPECT_EQ(made[0]->position(), (OdGePoint3d{10, 20, 0}));
  EXPECT_EQ(made[0]->height(), 3);
  EXPECT_EQ(made[1]->textString(), OdString(u" two "));
  EXPECT_NEAR(made[1]->position().y, 15, 1e-9);
  EXPECT_EQ(run.database->getSysVarDouble(u"TEXTSIZE", 0), 3);
}

TEST(TextCreate, tells_style_height_and_justification_first) {
  creation run;
  run.application.input().cancel();
  EXPECT_EQ(run.run<TypedText>(), kCommandCancelled);
  EXPECT_EQ(run.log().at(0), u"Current text style: \"Standard\", Height: 2.5,  Justify: Left");
  EXPECT_EQ(run.log().at(1), u"Input origin of text [Justify/Style]:");
}

TEST(TextCreate, a_style_with_a_fixed_height_never_shows_the_height_prompt) {
  creation run;
  run.style()->setTextSize(7);
  run.lines({u"0,0", u"0", u"one", u""});
  run.run<TypedText>();
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_EQ(run.texts()[0]->height(), 7);
  EXPECT_FALSE(run.tells(u"height"));
  EXPECT_EQ(run.database->getSysVarDouble(u"TEXTSIZE", 0), 7);
}

TEST(TextCreate, textsize_0_counts_as_2_5) {
  creation run;
  run.database->setSysVarDouble(u"TEXTSIZE", 0);
  run.lines({u"0,0", u"", u"", u"one", u""});
  run.run<TypedText>();
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_EQ(run.texts()[0]->height(), 2.5);
}

TEST(TextCreate, fit_asks_for_two_points_and_a_height_and_no_rotation) {
  creation run;
  run.lines({u"Fit", u"0,0", u"0,30", u"4", u"HH", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  ASSERT_EQ(run.texts().size(), 1u);
  const auto text = run.texts()[0];
  EXPECT_EQ(text->horizontalMode(), OdDb::kTextFit);
  EXPECT_EQ(text->height(), 4);
  EXPECT_NEAR(text->rotation(), std::numbers::pi / 2, 1e-12);
  OdArray<OdGePoint3d> corners;
  text->getBoundingPoints(corners);
  EXPECT_NEAR(corners[3].distanceTo({0, 30, 0}), 0, 1e-9);
}

TEST(TextCreate, align_asks_for_two_points_only) {
  creation run;
  run.lines({u"a", u"0,0", u"30,0", u"HH", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_GT(run.texts()[0]->height(), 10);
  EXPECT_FALSE(run.tells(u"height <"));
}

TEST(TextCreate, two_equal_baseline_points_repeat_the_prompt_with_the_message) {
  creation run;
  run.lines({u"Fit", u"1,1", u"1,1", u"11,1", u"", u"HH", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  EXPECT_THAT(run.log(), Contains(u"The distance between the two points must be nonzero."));
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_EQ(run.texts()[0]->alignmentPoint(), (OdGePoint3d{11, 1, 0}));
}

TEST(TextCreate, after_a_line_with_align_further_lines_are_left_aligned) {
  creation run;
  run.lines({u"Align", u"0,0", u"30,0", u"one", u"two", u""});
  run.run<TypedText>();
  ASSERT_EQ(run.texts().size(), 2u);
  EXPECT_EQ(run.texts()[0]->horizontalMode(), OdDb::kTextAlign);
  EXPECT_EQ(run.texts()[1]->horizontalMode(), OdDb::kTextLeft);
  EXPECT_NEAR(run.texts()[1]->position().x, 0, 1e-9);
}

TEST(TextCreate, enter_on_the_origin_puts_a_text_under_the_last_one_of_this_document) {
  creation run;
  run.lines({u"Justify", u"TR", u"40,20", u"3", u"90", u"one", u""});
  run.run<TypedText>();
  run.lines({u"", u"two", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  ASSERT_EQ(run.texts().size(), 2u);
  const auto below = run.texts()[1];
  EXPECT_EQ(below->horizontalMode(), OdDb::kTextRight);
  EXPECT_EQ(below->verticalMode(), OdDb::kTextTop);
  EXPECT_NEAR(below->rotation(), std::numbers::pi / 2, 1e-12);
  EXPECT_NEAR(below->alignmentPoint().distanceTo({45, 20, 0}), 0, 1e-9);
}

TEST(TextCreate, enter_on_the_origin_of_a_fresh_document_asks_again) {
  {
    creation elsewhere;
    elsewhere.lines({u"0,0", u"", u"", u"one", u""});
    elsewhere.run<TypedText>();
  }
  creation run;
  run.lines({u"", u"5,5", u"", u"", u"one", u""});
  run.run<TypedText>();
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_EQ(run.texts()[0]->position(), (OdGePoint3d{5, 5, 0}));
}

TEST(TextCreate, a_text_that_was_erased_is_no_last_one) {
  creation run;
  run.lines({u"0,0", u"", u"", u"one", u""});
  run.run<TypedText>();
  odCast<OdDbText>(run.entities().back().openObject(OdDb::kForWrite))->erase();
  run.lines({u"", u"7,7", u"", u"", u"two", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_EQ(run.texts()[0]->position(), (OdGePoint3d{7, 7, 0}));
}

TEST(TextCreate, height_and_rotation_may_be_shown_by_a_second_point) {
  creation run;
  run.lines({u"10,10"});
  run.application.input().click({10, 14, 0});
  run.application.input().click({0, 10, 0});
  run.lines({u"one", u""});
  run.run<TypedText>();
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_NEAR(run.texts()[0]->height(), 4, 1e-12);
  EXPECT_NEAR(run.texts()[0]->rotation(), std::numbers::pi, 1e-12);
}

TEST(TextCreate, letters_for_numbers_and_heights_that_are_none_are_told_and_asked_again) {
  creation run;
  run.lines({u"here", u"0,0", u"high", u"-3", u"1e300", u"0", u"up", u"30", u"one", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_EQ(run.texts()[0]->height(), 2.5);
  EXPECT_NEAR(run.texts()[0]->rotation(), std::numbers::pi / 6, 1e-12);
  const auto& log = run.log();
  EXPECT_EQ(std::count(log.begin(), log.end(), u"A length is wanted here, such as 2.5, or a point."), 3);
  EXPECT_EQ(std::count(log.begin(), log.end(), u"An angle in degrees is wanted here, or a point."), 1);
}

TEST(TextCreate, a_missing_style_is_told_and_asked_again) {
  creation run;
  run.lines({u"Style", u"nowhere", u"standard", u"0,0", u"", u"", u"one", u""});
  EXPECT_EQ(run.run<TypedText>(), kCommandDone);
  EXPECT_THAT(run.log(), Contains(u"no such style"));
  EXPECT_THAT(run.log(), Contains(u"Type the text style or [?] <Standard>:"));
  EXPECT_EQ(run.texts().size(), 1u);
}

TEST(TextCreate, a_question_mark_lists_the_styles) {
  creation run;
  run.style()->setXScale(0.5);
  run.lines({u"Style", u"?", u""});
  run.application.input().cancel();
  EXPECT_EQ(run.run<TypedText>(), kCommandCancelled);
  EXPECT_THAT(run.log(), Contains(u"Text styles:"));
  EXPECT_TRUE(run.tells(u"Style: \"Standard\" Font: "));
  EXPECT_TRUE(run.tells(u"Text size: 0  Width: 0.5  Oblique: 0  "));
}

TEST(TextCreate, a_text_has_slant_and_width_of_its_style) {
  creation run;
  run.style()->setXScale(0.5);
  run.style()->setObliquingAngle(0.2);
  run.lines({u"0,0", u"", u"", u"one", u""});
  run.run<TypedText>();
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_EQ(run.texts()[0]->widthFactor(), 0.5);
  EXPECT_DOUBLE_EQ(run.texts()[0]->oblique(), 0.2);
}

TEST(TextCreate, every_cancel_ends_the_run_and_makes_nothing) {
  const std::vector<std::vector<std::u16string_view>> before_cancel{
      {},       {u"Justify"},   {u"Style"},           {u"Fit"},        {u"Fit", u"0,0"},
      {u"0,0"}, {u"0,0", u"3"}, {u"0,0", u"3", u"0"}, {u"TR", u"0,0"},
  };
  for (const auto& lines : before_cancel) {
    creation run;
    for (const auto line : lines) run.application.input().line(line);
    run.application.input().cancel();
    EXPECT_EQ(run.run<TypedText>(), kCommandCancelled) << lines.size();
    EXPECT_TRUE(run.entities().empty());
    EXPECT_TRUE(run.application.document().pickFirst().isEmpty());
  }
}

TEST(TextCreate, all_capitals_are_made_while_caps_lock_is_on_and_the_drawing_wants_them) {
  for (const bool wanted : {false, true}) {
    creation run;
    run.database->setSysVarInt(u"TEXTALLCAPS", wanted);
    run.application.keyState().hold({.caps_lock = true});
    run.lines({u"0,0", u"", u"", u"straße ä", u""});
    run.run<TypedText>();
    ASSERT_EQ(run.texts().size(), 1u);
    EXPECT_EQ(run.texts()[0]->textString(), OdString(wanted ? u"STRAßE Ä" : u"straße ä"));
  }
}

TEST(TextCreate, typed_in_place_each_line_is_a_text_at_the_very_point) {
  creation run;
  run.lines({u"10,20", u"3", u"0"});
  run.type(u"one");
  run.key(VK_RETURN);
  run.type(u"two");
  run.key(VK_RETURN);
  run.key(VK_RETURN);
  EXPECT_EQ(run.run<TextInPlace>(), kCommandDone);
  const auto made = run.texts();
  ASSERT_EQ(made.size(), 2u);
  EXPECT_EQ(made[0]->textString(), OdString(u"one"));
  EXPECT_EQ(made[0]->position(), (OdGePoint3d{10, 20, 0}));
  EXPECT_NEAR(made[1]->position().distanceTo({10, 15, 0}), 0, 1e-9);
}

TEST(TextCreate, a_press_beside_the_text_begins_the_next_one_there) {
  creation run;
  run.lines({u"10,20", u"3", u"0"});
  run.type(u"one");
  run.application.input().click({100, 60, 0});
  run.type(u"two");
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<TextInPlace>(), kCommandDone);
  ASSERT_EQ(run.texts().size(), 2u);
  EXPECT_EQ(run.texts()[1]->textString(), OdString(u"two"));
  EXPECT_NEAR(run.texts()[1]->position().distanceTo({100, 60, 0}), 0, 1e-9);
}

TEST(TextCreate, a_fitted_text_typed_in_place_fills_the_room_between_its_points) {
  creation run;
  run.lines({u"Fit", u"0,0", u"30,0", u"3"});
  run.type(u"HH");
  run.key(VK_RETURN, kCtrl);
  run.run<TextInPlace>();
  ASSERT_EQ(run.texts().size(), 1u);
  OdArray<OdGePoint3d> corners;
  run.texts()[0]->getBoundingPoints(corners);
  EXPECT_NEAR(corners[3].x, 30, 1e-9);
}

TEST(TextCreate, in_place_every_justification_hangs_on_the_point_that_was_given) {
  for (const std::u16string_view mode :
       {u"Center", u"Middle", u"Right", u"TL", u"TC", u"TR", u"ML", u"MC", u"MR", u"BL", u"BC", u"BR"}) {
    creation run;
    run.lines({u"Justify", mode, u"10,20", u"3", u"0"});
    run.type(u"Hg");
    run.key(VK_RETURN, kCtrl);
    run.run<TextInPlace>();
    ASSERT_EQ(run.texts().size(), 1u);
    EXPECT_EQ(run.texts()[0]->alignmentPoint(), (OdGePoint3d{10, 20, 0}));
  }
}

TEST(TextCreate, escape_in_place_gives_up_the_line_that_is_typed_and_keeps_those_above) {
  creation run;
  run.lines({u"10,20", u"3", u"0"});
  run.type(u"one");
  run.key(VK_RETURN);
  run.type(u"tw");
  run.key(VK_ESCAPE);
  EXPECT_EQ(run.run<TextInPlace>(), kCommandCancelled);
  ASSERT_EQ(run.texts().size(), 1u);
  EXPECT_TRUE(run.application.events().shown().empty());
}

TEST(TextCreate, in_place_rotation_and_justification_are_remembered_by_document) {
  creation run;
  run.lines({u"Justify", u"BR", u"10,20", u"3", u"30"});
  run.type(u"one");
  run.key(VK_RETURN, kCtrl);
  run.run<TextInPlace>();
  run.application.input().cancel();
  run.run<TextInPlace>();
  EXPECT_THAT(run.log(), Contains(u"Current text style: \"Standard\", Height: 3,  Justify: BR"));
  EXPECT_TRUE(run.tells(u"Input bottom-right point of text [Start/Center/Middle"));
  run.lines({u"Start", u"0,0", u""});
  run.application.input().cancel();
  run.run<TextInPlace>();
  EXPECT_THAT(run.log(), Contains(u"Specify rotation of text <30>:"));
}

TEST(TextCreate, a_text_that_stayed_empty_is_not_kept) {
  creation run;
  run.lines({u"10,20", u"", u""});
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<TextInPlace>(), kCommandDone);
  EXPECT_TRUE(run.entities().empty());
}
