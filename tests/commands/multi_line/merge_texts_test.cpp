#include "commands/multi_line/merge_texts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/multi_line/text_to_mtext_command.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "tests/commands/command_run.h"

using testing::ElementsAre;

namespace {

/// The text that takes the place of others, in the order in which they were selected.
struct merging {
  command_run run;
  std::vector<OdDbTextPtr> texts;

  OdDbTextPtr add(const OdString& string, const OdGePoint3d& position) {
    texts.push_back(run.addLineOfText(string, position));
    return texts.back();
  }

  std::vector<std::u16string> order() {
    sort_in_reading_order(texts);
    std::vector<std::u16string> strings;
    for (const OdDbTextPtr& text : texts) strings.push_back(text->textString().str());
    return strings;
  }

  OdDbMTextPtr merged() {
    sort_in_reading_order(texts);
    auto result = odNew<OdDbMText>();
    result->setDatabaseDefaults(run.database.get());
    EXPECT_TRUE(merge_texts(texts, *result));
    return result;
  }

  std::u16string contents() { return merged()->contents().str(); }
};

/// Codes of a text whose colour is that of its layer, which a text without codes does not have.
std::u16string by_layer(const std::u16string& text) { return u"{\\C256;" + text + u"}"; }

}  // namespace

TEST(MergeTexts, texts_on_one_line_are_joined_by_a_blank) {
  merging text;
  text.add(u"Hall", {0, 0, 0});
  text.add(u"12 m", {100, 0, 0});
  EXPECT_EQ(text.contents(), by_layer(u"Hall 12 m"));
}

TEST(MergeTexts, a_text_that_overlaps_the_one_before_goes_to_the_next_line) {
  merging text;
  text.add(u"Hall and stairs", {0, 0, 0});
  text.add(u"12 m", {5, 0, 0});
  EXPECT_EQ(text.contents(), by_layer(u"Hall and stairs\n12 m"));
}

TEST(MergeTexts, higher_texts_come_first) {
  merging text;
  text.add(u"below", {0, -10, 0});
  text.add(u"above", {50, 10, 0});
  EXPECT_THAT(text.order(), ElementsAre(u"above", u"below"));
}

TEST(MergeTexts, a_tenth_of_both_heights_apart_is_one_line_ordered_by_x) {
  merging text;
  text.add(u"right", {50, 0.4, 0});
  text.add(u"left", {0, 0, 0});
  EXPECT_THAT(text.order(), ElementsAre(u"left", u"right"));
}

TEST(MergeTexts, more_than_a_tenth_of_both_heights_apart_is_two_lines) {
  merging text;
  text.add(u"right", {50, 0.6, 0});
  text.add(u"left", {0, 0, 0});
  EXPECT_THAT(text.order(), ElementsAre(u"right", u"left"));
}

TEST(MergeTexts, the_order_of_the_selection_has_no_effect) {
  merging forth, back;
  const std::vector<OdGePoint3d> places{{0, 0, 0}, {10, 0.4, 0}, {20, 0.8, 0}, {30, 1.2, 0}};
  for (std::size_t i = 0; i < places.size(); ++i) {
    forth.add(OdString(std::u16string(1, static_cast<char16_t>(u'a' + i))), places[i]);
    const std::size_t last = places.size() - 1 - i;
    back.add(OdString(std::u16string(1, static_cast<char16_t>(u'a' + last))), places[last]);
  }
  EXPECT_EQ(forth.order(), back.order());
}

TEST(MergeTexts, braces_and_backslashes_of_a_text_are_escaped) {
  merging text;
  text.add(u"a{b", {0, 0, 0});
  EXPECT_EQ(text.contents(), by_layer(u"a\\{b"));
}

TEST(MergeTexts, blanks_within_a_text_stay_blanks) {
  merging text;
  text.add(u"a b  c", {0, 0, 0});
  EXPECT_EQ(text.contents(), by_layer(u"a b  c"));
}

TEST(MergeTexts, each_text_keeps_its_colour) {
  merging text;
  text.add(u"red", {0, 0, 0})->setColorIndex(1);
  OdCmEntityColor exact;
  exact.setRGB(10, 20, 30);
  text.add(u"exact", {100, 0, 0})->setColor(exact);
  EXPECT_EQ(text.contents(), u"{\\C1;red \\c1971210;exact}");
}

TEST(MergeTexts, each_text_keeps_its_width_and_its_slant) {
  merging text;
  text.add(u"plain", {0, 0, 0});
  const auto wide = text.add(u"wide", {100, 0, 0});
  wide->setWidthFactor(2);
  wide->setOblique(0.25);
  EXPECT_EQ(text.contents(), by_layer(u"plain \\W2;\\Q14.324;wide"));
}

TEST(MergeTexts, a_first_text_that_agrees_with_its_style_needs_no_codes_for_it) {
  merging text;
  {
    const auto style =
        odCast<OdDbTextStyleTableRecord>(text.run.database->getTEXTSTYLE().openObject(OdDb::kForWrite));
    style->setXScale(0.8);
    style->setObliquingAngle(0.25);
    style->setTextSize(4);
  }
  const auto first = text.add(u"plain", {0, 0, 0});
  first->setWidthFactor(0.8);
  first->setOblique(0.25);
  EXPECT_EQ(text.contents(), by_layer(u"plain"));
  EXPECT_EQ(text.merged()->textHeight(), 4);
}

TEST(MergeTexts, the_first_text_gives_height_rotation_and_place) {
  merging text;
  const auto first = text.add(u"Hall", {7, 9, 0});
  first->setHeight(5);
  first->setRotation(0.5);
  OdArray<OdGePoint3d> corners;
  first->getBoundingPoints(corners);
  const auto merged = text.merged();
  EXPECT_EQ(merged->textHeight(), 5);
  EXPECT_NEAR(merged->rotation(), 0.5, 1e-12);
  EXPECT_TRUE(merged->location().isEqualTo(corners[0]));
  EXPECT_EQ(merged->attachment(), OdDb::kTopLeft);
}

TEST(MergeTexts, a_right_aligned_first_text_places_it_at_the_second_corner) {
  merging text;
  const auto first = text.add(u"Hall", {0, 0, 0});
  first->setHorizontalMode(OdDb::kTextRight);
  first->setAlignmentPoint({20, 5, 0});
  first->adjustAlignment();
  OdArray<OdGePoint3d> corners;
  first->getBoundingPoints(corners);
  const auto merged = text.merged();
  EXPECT_TRUE(merged->location().isEqualTo(corners[1]));
  EXPECT_EQ(merged->attachment(), OdDb::kTopRight);
}

TEST(MergeTexts, a_centred_first_text_places_it_between_its_upper_corners) {
  for (const auto mode : {OdDb::kTextCenter, OdDb::kTextMid}) {
    merging text;
    const auto first = text.add(u"Hall", {0, 0, 0});
    first->setHorizontalMode(mode);
    first->setAlignmentPoint({20, 5, 0});
    first->adjustAlignment();
    OdArray<OdGePoint3d> corners;
    first->getBoundingPoints(corners);
    const auto merged = text.merged();
    EXPECT_NEAR(merged->location().x, (corners[0].x + corners[1].x) / 2, 1e-9);
    EXPECT_NEAR(merged->location().y, corners[0].y, 1e-9);
    EXPECT_EQ(merged->attachment(), OdDb::kTopCenter);
  }
}

TEST(MergeTexts, nothing_to_merge_fails) { EXPECT_FALSE(merge_texts({}, *odNew<OdDbMText>())); }

TEST(Text2MText, takes_the_place_of_the_selected_texts) {
  command_run run;
  run.addLineOfText(u"Hall", {0, 0, 0});
  run.addLineOfText(u"12 m", {100, 0, 0});
  run.application.input().click({100.5, 0.5, 0});
  run.application.input().click({0.5, 0.5, 0});
  run.application.input().line(u"");
  EXPECT_EQ(run.run<CText2MTextCmd>(), kCommandDone);
  ASSERT_EQ(run.entities().size(), 1u);
  const auto merged = odCast<OdDbMText>(run.entities().front().openObject());
  ASSERT_TRUE(merged);
  EXPECT_EQ(merged->contents().str(), by_layer(u"Hall 12 m"));
}

TEST(Text2MText, a_selection_of_lines_only_is_told_and_changes_nothing) {
  command_run run;
  run.addLine({0, 0, 0}, {10, 0, 0});
  run.application.input().click({5, 0, 0});
  run.application.input().line(u"");
  EXPECT_EQ(run.run<CText2MTextCmd>(), kCommandDone);
  EXPECT_EQ(run.said(), u"Selected objects are not texts");
  EXPECT_EQ(run.entities().size(), 1u);
}

TEST(Text2MText, a_cancelled_selection_has_status_1) {
  command_run run;
  run.addLineOfText(u"Hall", {0, 0, 0});
  run.application.input().cancel();
  EXPECT_EQ(run.run<CText2MTextCmd>(), kCommandCancelled);
  EXPECT_EQ(run.entities().size(), 1u);
}

TEST(Text2MText, texts_of_a_locked_layer_stay_as_they_are) {
  command_run run;
  run.addLineOfText(u"Hall", {0, 0, 0});
  run.lockLayer();
  run.application.input().click({0.5, 0.5, 0});
  run.application.input().line(u"");
  EXPECT_EQ(run.run<CText2MTextCmd>(), kCommandDone);
  EXPECT_THAT(run.application.log().lines(), testing::Contains(u"1 on a locked layer, left out"));
  EXPECT_TRUE(odCast<OdDbText>(run.entities().front().openObject()));
}
