#include "editor/text_justify.h"

#include <gtest/gtest.h>

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/gi/OdGiRecorder.h"

namespace {

using Modes = std::pair<OdDb::TextHorzMode, OdDb::TextVertMode>;

std::vector<Modes> all_modes() {
  std::vector<Modes> modes;
  for (const auto h : {OdDb::kTextLeft, OdDb::kTextCenter, OdDb::kTextRight})
    for (const auto v : {OdDb::kTextBase, OdDb::kTextBottom, OdDb::kTextVertMid, OdDb::kTextTop})
      modes.emplace_back(h, v);
  for (const auto h : {OdDb::kTextAlign, OdDb::kTextMid, OdDb::kTextFit})
    modes.emplace_back(h, OdDb::kTextBase);
  return modes;
}

struct JustifiedText : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  OdDbTextPtr text = odNew<OdDbText>();

  JustifiedText() {
    text->setDatabaseDefaults(database.get());
    text->setTextString(u"Hgl y");
    text->setHeight(10);
    text->setPosition({30, 40, 0});
    text->setRotation(0.3);
  }

  OdArray<OdGePoint3d> corners() const {
    OdArray<OdGePoint3d> points;
    text->getBoundingPoints(points);
    return points;
  }

  OdGeExtents3d ink() const {
    OdGiRecorder recorder;
    recorder.record(*text);
    return recorder.extents();
  }

  /// From each justification to every other, and back.
  void walk() {
    for (const auto& [h, v] : all_modes()) {
      ApplyTextJustify(text, h, v);
      const auto before = corners();
      const auto ink_before = ink();
      for (const auto& [to_h, to_v] : all_modes()) {
        ApplyTextJustify(text, to_h, to_v);
        EXPECT_EQ(Modes(text->horizontalMode(), text->verticalMode()), Modes(to_h, to_v));
        expect_same(before, ink_before);
        ApplyTextJustify(text, h, v);
        expect_same(before, ink_before);
      }
    }
  }

  void expect_same(const OdArray<OdGePoint3d>& before, const OdGeExtents3d& ink_before) const {
    const auto now = corners();
    for (unsigned i = 0; i < 4; ++i)
      EXPECT_NEAR(now[i].distanceTo(before[i]), 0, 1e-9) << text->horizontalMode() << text->verticalMode();
    EXPECT_NEAR(ink().minPoint().distanceTo(ink_before.minPoint()), 0, 1e-9);
    EXPECT_NEAR(ink().maxPoint().distanceTo(ink_before.maxPoint()), 0, 1e-9);
  }
};

}  // namespace

TEST_F(JustifiedText, stays_where_it_was_from_every_justification_to_every_other_and_back) { walk(); }

TEST_F(JustifiedText, stays_with_a_slant_and_a_width_factor) {
  text->setOblique(0.4);
  text->setWidthFactor(0.7);
  walk();
}

TEST_F(JustifiedText, stays_when_it_is_written_backwards_and_upside_down) {
  text->mirrorInX(true);
  walk();
  text->mirrorInY(true);
  walk();
}

TEST_F(JustifiedText, stays_in_a_shape_font) {
  const auto style = odCast<OdDbTextStyleTableRecord>(database->getTEXTSTYLE().openObject(OdDb::kForWrite));
  style->setFont(u"", false, false, 0, 0);
  style->setFileName(u"txt");
  text->setOblique(0.2);
  walk();
}

TEST_F(JustifiedText, stays_in_a_plane_of_its_own) {
  text->setNormal(OdGeVector3d(1, 2, 3).normal());
  walk();
}

TEST_F(JustifiedText, whose_first_point_nobody_worked_out_stays_where_it_is_seen) {
  text->setHorizontalMode(OdDb::kTextRight);
  text->setVerticalMode(OdDb::kTextTop);
  text->setAlignmentPoint({30, 40, 0});
  text->setPosition({30, 40, 0});
  const auto before = corners();
  ApplyTextJustify(text, OdDb::kTextLeft, OdDb::kTextBase);
  for (unsigned i = 0; i < 4; ++i) EXPECT_NEAR(corners()[i].distanceTo(before[i]), 0, 1e-9);
}

TEST_F(JustifiedText, that_was_centred_and_is_set_back_to_left_keeps_its_place) {
  ApplyTextJustify(text, OdDb::kTextCenter, OdDb::kTextBase);
  ApplyTextJustify(text, OdDb::kTextLeft, OdDb::kTextBase);
  EXPECT_NEAR(text->position().distanceTo({30, 40, 0}), 0, 1e-9);
  EXPECT_TRUE(isDefaultTextAlignment(text));
}

TEST_F(JustifiedText, that_was_left_and_becomes_aligned_gets_the_right_end_of_its_baseline_as_second_point) {
  text->setRotation(0);
  const auto before = corners();
  ApplyTextJustify(text, OdDb::kTextAlign, OdDb::kTextBase);
  EXPECT_NEAR(text->position().distanceTo({30, 40, 0}), 0, 1e-9);
  EXPECT_NEAR(text->alignmentPoint().x, before[3].x, 1e-9);
  EXPECT_NEAR(text->alignmentPoint().y, 40, 1e-9);
  EXPECT_NEAR(text->height(), 10, 1e-9);
}

TEST_F(JustifiedText, has_two_points_when_it_is_aligned_or_fitted_and_not_in_the_middle) {
  EXPECT_TRUE(alignOrFit(OdDb::kTextAlign));
  EXPECT_TRUE(alignOrFit(OdDb::kTextFit));
  EXPECT_FALSE(alignOrFit(OdDb::kTextMid));
}

TEST_F(JustifiedText, without_a_database_cannot_be_measured) {
  const auto stray = odNew<OdDbText>();
  EXPECT_THROW(ApplyTextJustify(stray, OdDb::kTextFit, OdDb::kTextBase), OdError);
}
