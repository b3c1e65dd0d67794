#include <gtest/gtest.h>

#include <numbers>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbText.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/gi/OdGiRecorder.h"

namespace {

/// A text of capitals and one descender in a typeface that every machine of the project has.
struct TextAlignment : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  OdDbTextPtr text = odNew<OdDbText>();
  OdArray<OdGePoint3d> corners;

  TextAlignment() {
    const auto style = odOpen<OdDbTextStyleTableRecord>(database->getTEXTSTYLE(), OdDb::kForWrite);
    style->setFont(u"Liberation Sans", false, false, 0, 34);
    text->setDatabaseDefaults(database.get());
    text->setTextString(u"HgH");
    text->setHeight(10);
  }

  void place(OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical, const OdGePoint3d& anchor) {
    text->setHorizontalMode(horizontal);
    text->setVerticalMode(vertical);
    text->setAlignmentPoint(anchor);
    text->adjustAlignment();
    text->getBoundingPoints(corners);
  }

  double left() const { return corners[2].x; }
  double right() const { return corners[3].x; }
  double middle() const { return (left() + right()) / 2; }
};

}  // namespace

TEST_F(TextAlignment, corners_are_top_left_top_right_bottom_left_bottom_right) {
  text->setPosition({100, 50, 0});
  text->getBoundingPoints(corners);
  ASSERT_EQ(corners.size(), 4u);
  EXPECT_EQ(corners[0].x, 100);
  EXPECT_NEAR(corners[0].y, 60, 0.05);  // a capital is as high as the text
  EXPECT_GT(corners[1].x, 115);
  EXPECT_EQ(corners[1].y, corners[0].y);
  EXPECT_EQ(corners[2].x, 100);
  EXPECT_LT(corners[2].y, 50);  // the descender
  EXPECT_EQ(corners[3].x, corners[1].x);
  EXPECT_EQ(corners[3].y, corners[2].y);
}

TEST_F(TextAlignment, the_corners_turn_with_the_text) {
  text->setRotation(std::numbers::pi / 2);
  text->getBoundingPoints(corners);
  EXPECT_NEAR(corners[0].x, -10, 0.05);
  EXPECT_NEAR(corners[0].y, 0, 1e-9);
  EXPECT_GT(corners[1].y, 15);
  EXPECT_GT(corners[2].x, 0);
}

TEST_F(TextAlignment, centre_and_right_refer_to_the_advance) {
  place(OdDb::kTextCenter, OdDb::kTextBase, {30, 0, 0});
  EXPECT_NEAR(middle(), 30, 1e-9);
  EXPECT_EQ(text->position().y, 0);
  place(OdDb::kTextRight, OdDb::kTextBase, {30, 0, 0});
  EXPECT_NEAR(right(), 30, 1e-9);
}

TEST_F(TextAlignment, top_and_middle_refer_to_the_capitals_and_bottom_to_the_descender) {
  place(OdDb::kTextLeft, OdDb::kTextTop, {0, 0, 0});
  EXPECT_NEAR(text->position().y, -10, 1e-9);
  place(OdDb::kTextLeft, OdDb::kTextVertMid, {0, 0, 0});
  EXPECT_NEAR(text->position().y, -5, 1e-9);
  place(OdDb::kTextLeft, OdDb::kTextBottom, {0, 0, 0});
  EXPECT_GT(text->position().y, 1);
  EXPECT_LE(-corners[2].y, 1e-9);  // no ink below the anchor
}

TEST_F(TextAlignment, middle_is_the_middle_of_the_ink_with_its_descenders) {
  place(OdDb::kTextMid, OdDb::kTextBase, {30, 40, 0});
  EXPECT_NEAR((corners[0].y + corners[2].y) / 2, 40, 1e-9);
  EXPECT_NEAR(middle(), 30, 0.5);
}

TEST_F(TextAlignment, aligned_text_grows_in_height_between_its_points) {
  text->setPosition({0, 0, 0});
  place(OdDb::kTextAlign, OdDb::kTextBase, {0, 100, 0});
  EXPECT_NEAR(text->rotation(), std::numbers::pi / 2, 1e-12);
  EXPECT_GT(text->height(), 20);
  EXPECT_EQ(text->widthFactor(), 1);
  EXPECT_NEAR(corners[3].y, 100, 1e-6);
}

TEST_F(TextAlignment, fitted_text_grows_in_width_alone) {
  text->setPosition({0, 0, 0});
  place(OdDb::kTextFit, OdDb::kTextBase, {100, 0, 0});
  EXPECT_EQ(text->height(), 10);
  EXPECT_GT(text->widthFactor(), 2);
  EXPECT_NEAR(right(), 100, 1e-6);
}

TEST_F(TextAlignment, a_left_aligned_text_stays_where_it_is) {
  text->setPosition({7, 8, 0});
  text->adjustAlignment();
  EXPECT_EQ(text->position(), (OdGePoint3d{7, 8, 0}));
}

TEST_F(TextAlignment, the_picture_lies_within_the_corners) {
  text->setPosition({100, 50, 0});
  text->getBoundingPoints(corners);
  OdGiRecorder recorder;
  recorder.record(*text);
  EXPECT_EQ(recorder.count(OdGiPrimitive::kPolygon), 3);
  EXPECT_NEAR(recorder.extents().maxPoint().y, corners[0].y, 1e-6);
  EXPECT_NEAR(recorder.extents().minPoint().y, corners[2].y, 1e-6);
  EXPECT_GE(recorder.extents().minPoint().x, corners[2].x);
}

TEST_F(TextAlignment, an_empty_text_has_a_box_of_its_height_and_no_width) {
  text->setTextString(u"");
  text->getBoundingPoints(corners);
  ASSERT_EQ(corners.size(), 4u);
  EXPECT_EQ(corners[0], (OdGePoint3d{0, 10, 0}));
  EXPECT_EQ(corners[3], (OdGePoint3d{0, 0, 0}));
}

TEST_F(TextAlignment, a_shape_font_is_centred_and_ended_by_its_ink) {
  const auto style = odOpen<OdDbTextStyleTableRecord>(database->getTEXTSTYLE(), OdDb::kForWrite);
  style->setFont(u"", false, false, 0, 0);
  style->setFileName(u"txt");
  const auto ink = [this] {
    OdGiRecorder recorder;
    recorder.record(*text);
    return recorder.extents();
  };
  place(OdDb::kTextRight, OdDb::kTextBase, {30, 0, 0});
  EXPECT_NEAR(ink().maxPoint().x, 30, 1e-9);
  place(OdDb::kTextCenter, OdDb::kTextBase, {30, 0, 0});
  EXPECT_NEAR(ink().minPoint().x + ink().maxPoint().x, 60, 1e-9);
  text->setPosition({10, 0, 0});
  place(OdDb::kTextFit, OdDb::kTextBase, {50, 0, 0});
  EXPECT_NEAR(ink().maxPoint().x, 50, 1e-9);
}

TEST_F(TextAlignment, a_point_above_the_baseline_leans_over_with_slanted_letters) {
  place(OdDb::kTextLeft, OdDb::kTextTop, {0, 0, 0});
  const double upright = text->position().x;
  text->setOblique(std::numbers::pi / 4);
  place(OdDb::kTextLeft, OdDb::kTextTop, {0, 0, 0});
  EXPECT_NEAR(text->position().x, upright - 10, 1e-9);
  place(OdDb::kTextLeft, OdDb::kTextVertMid, {0, 0, 0});
  EXPECT_NEAR(text->position().x, upright - 5, 1e-9);
  place(OdDb::kTextLeft, OdDb::kTextBottom, {0, 0, 0});
  EXPECT_NEAR(text->position().x, upright, 1e-9);
}

TEST_F(TextAlignment, a_backward_text_runs_from_its_position_against_its_direction) {
  place(OdDb::kTextRight, OdDb::kTextTop, {0, 0, 0});
  const double width = right() - left();
  text->mirrorInX(true);
  place(OdDb::kTextRight, OdDb::kTextTop, {0, 0, 0});
  EXPECT_NEAR(text->position().x, width, 1e-9);
  EXPECT_NEAR(corners[2].x, width, 1e-9);  // where the text begins
  EXPECT_NEAR(corners[3].x, 0, 1e-9);
}

TEST_F(TextAlignment, an_upside_down_text_hangs_from_its_baseline) {
  text->mirrorInY(true);
  place(OdDb::kTextLeft, OdDb::kTextTop, {0, 0, 0});
  EXPECT_NEAR(text->position().y, 10, 1e-9);
  EXPECT_NEAR(corners[2].y, 0, 0.05);  // the top of the letters, which is their lowest end
}

TEST_F(TextAlignment, a_fitted_backward_text_fills_the_room_between_its_points_too) {
  text->mirrorInX(true);
  text->setPosition({100, 0, 0});
  place(OdDb::kTextFit, OdDb::kTextBase, {20, 0, 0});
  EXPECT_NEAR(text->rotation(), 0, 1e-12);
  EXPECT_NEAR(corners[2].x, 100, 1e-9);
  EXPECT_NEAR(corners[3].x, 20, 1e-9);
}

TEST_F(TextAlignment, every_justification_puts_its_own_point_of_the_box_on_the_alignment_point) {
  text->setTextString(u"HH");
  const double kAlong[] = {0, 0.5, 1};
  const OdGePoint3d anchor{30, 40, 0};
  for (const auto vertical : {OdDb::kTextBase, OdDb::kTextVertMid, OdDb::kTextTop}) {
    for (const auto horizontal : {OdDb::kTextLeft, OdDb::kTextCenter, OdDb::kTextRight}) {
      if (horizontal == OdDb::kTextLeft && vertical == OdDb::kTextBase) continue;
      place(horizontal, vertical, anchor);
      const double up = vertical == OdDb::kTextTop ? 1 : vertical == OdDb::kTextVertMid ? 0.5 : 0;
      EXPECT_NEAR(left() + kAlong[horizontal] * (right() - left()), anchor.x, 1e-9);
      EXPECT_NEAR(corners[2].y + up * (corners[0].y - corners[2].y), anchor.y, 0.05);
    }
  }
}

TEST_F(TextAlignment, signs_of_two_percents_are_drawn_as_what_they_stand_for) {
  const auto shown = [this](const char16_t* string) {
    text->setTextString(string);
    text->getBoundingPoints(corners);
    return right() - left();
  };
  EXPECT_DOUBLE_EQ(shown(u"%%d%%p%%c"), shown(u"\u00B0\u00B1\u2205"));
  EXPECT_DOUBLE_EQ(shown(u"%%065%%%"), shown(u"A%"));
  EXPECT_DOUBLE_EQ(shown(u"%%uA%%u%%oB"), shown(u"AB"));
}

TEST_F(TextAlignment, a_text_that_had_no_alignment_point_keeps_the_one_it_was_justified_by) {
  text->setPosition({100, 50, 0});
  text->setHorizontalMode(OdDb::kTextRight);
  text->adjustAlignment();
  EXPECT_TRUE(text->alignmentPoint().isEqualTo({100, 50, 0}));
  EXPECT_LT(text->position().x, 90);
}
