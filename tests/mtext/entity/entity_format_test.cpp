#include <gtest/gtest.h>

#include "mtext/entity/decode_entity.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_layout.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/gi/OdGiRecorder.h"

namespace {

struct EntityFormat : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  OdDbMTextPtr text = odNew<OdDbMText>();

  EntityFormat() {
    database->setTextLayout(std::make_shared<mtext::mtext_layout>());
    text->setDatabaseDefaults(database.get());
    text->setTextHeight(2.5);
  }

  OdDbTextStyleTableRecordPtr style() {
    return odCast<OdDbTextStyleTableRecord>(text->textStyle().openObject(OdDb::kForWrite));
  }

  OdGiRecorder& drawn() {
    recorder.record(*text);
    return recorder;
  }

  OdGiRecorder recorder;
};

}  // namespace

TEST_F(EntityFormat, a_zero_text_height_has_2_5_in_the_frame_and_0_in_the_format) {
  text->setTextHeight(0);
  EXPECT_EQ(mtext::mtext_convert_info(text).height, 2.5);
  EXPECT_EQ(mtext::default_mtext_format(text).height, 0.0);
}

TEST_F(EntityFormat, a_style_without_a_typeface_gives_its_file_with_shx) {
  style()->setFont(u"", false, false, 0, 0);
  style()->setFileName(u"simplex");
  EXPECT_EQ(mtext::default_mtext_format(text).font, u"simplex.shx");
  EXPECT_TRUE(mtext::default_mtext_format(text).is_shx);
  style()->setFileName(u"simplex.shx");
  EXPECT_EQ(mtext::default_mtext_format(text).font, u"simplex.shx");
}

TEST_F(EntityFormat, a_style_with_a_typeface_gives_its_face_and_scale) {
  style()->setFont(u"Liberation Sans", true, false, 0, 34);
  style()->setXScale(0.8);
  style()->setObliquingAngle(0.25);
  const auto format = mtext::default_mtext_format(text);
  EXPECT_EQ(format.font, u"Liberation Sans");
  EXPECT_FALSE(format.is_shx);
  EXPECT_EQ(format.flags, 1U);
  EXPECT_EQ(format.pitch, 34U);
  EXPECT_DOUBLE_EQ(format.width_factor, 0.8);
  EXPECT_NEAR(format.oblique, 0.25, 1e-9);
  EXPECT_EQ(format.height_kind, 0U);
}

TEST_F(EntityFormat, a_style_s_fixed_size_has_no_effect_on_the_base_format) {
  style()->setTextSize(7);
  EXPECT_EQ(mtext::default_mtext_format(text).height, 2.5);
}

TEST_F(EntityFormat, attachment_5_gives_alignment_2_and_vertical_1) {
  text->setAttachment(OdDb::kMiddleCenter);
  EXPECT_EQ(mtext::mtext_convert_info(text).alignment, 2U);
  EXPECT_EQ(mtext::mtext_convert_info(text).vertical, 1U);
}

TEST_F(EntityFormat, an_entity_with_no_columns_gets_a_gutter_of_a_fifth_of_its_width) {
  text->setWidth(30);
  const auto columns = mtext::mtext_convert_info(text).columns;
  EXPECT_DOUBLE_EQ(columns.width, 30);
  EXPECT_DOUBLE_EQ(columns.gutter, 6);
  EXPECT_EQ(columns.heights.size(), 1U);
}

TEST_F(EntityFormat, columns_are_read_by_their_type) {
  text->setColumnType(OdDb::kStaticColumns);
  text->setColumnCount(3);
  text->setColumnWidth(20);
  text->setColumnGutterWidth(4);
  text->setHeight(12);
  auto columns = mtext::mtext_convert_info(text).columns;
  EXPECT_EQ(columns.kind, 0U);
  EXPECT_EQ(columns.heights, (std::vector<double>{12, 12, 12}));
  EXPECT_DOUBLE_EQ(columns.width, 20);
  EXPECT_DOUBLE_EQ(columns.gutter, 4);

  text->setColumnType(OdDb::kDynamicColumns);
  text->setColumnAutoHeight(true);
  columns = mtext::mtext_convert_info(text).columns;
  EXPECT_EQ(columns.kind, 2U);
  EXPECT_EQ(columns.heights, (std::vector<double>{12}));

  text->setColumnAutoHeight(false);
  text->setColumnCount(2);
  text->setColumnHeight(0, 9);
  text->setColumnHeight(1, 0);
  columns = mtext::mtext_convert_info(text).columns;
  EXPECT_EQ(columns.kind, 1U);
  EXPECT_EQ(columns.heights, (std::vector<double>{9, 0}));
}

TEST_F(EntityFormat, the_entity_s_line_spacing_counts_for_drawing_alone) {
  text->setLineSpacingStyle(OdDb::kExactly);
  text->setLineSpacingFactor(2);
  EXPECT_EQ(mtext::mtext_convert_info(text).spacing, (mtext::format::line_spacing{3, 1.0}));
  EXPECT_EQ(mtext::drawn_convert_info(text).spacing, (mtext::format::line_spacing{2, 2.0}));
}

TEST_F(EntityFormat, decoding_null_gives_an_empty_text) {
  EXPECT_TRUE(mtext::decode(OdDbMTextPtr()).parts.empty());
}

TEST_F(EntityFormat, decoding_lays_the_contents_out) {
  text->setContents(u"ab\\Pc");
  const auto laid = mtext::decode(text);
  EXPECT_EQ(laid.parts.size(), 4U);
  EXPECT_EQ(laid.lines.size(), 2U);
}

TEST_F(EntityFormat, codes_that_are_not_read_are_drawn_as_they_stand) {
  text->setContents(u"\\Xa");
  EXPECT_EQ(mtext::decode(text).parts.size(), 3U);
}

TEST_F(EntityFormat, a_text_in_a_drawing_without_its_style_is_drawn_all_the_same) {
  text->setContents(u"H");
  style()->erase();
  EXPECT_EQ(mtext::drawn_mtext_format(text).font, u"txt.shx");
  EXPECT_EQ(mtext::drawn_mtext_format(text).height, 2.5);
  drawn();
  EXPECT_FALSE(recorder.primitives().empty());
}

TEST_F(EntityFormat, the_attachment_point_is_the_location) {
  text->setContents(u"Hall");
  text->setAttachment(OdDb::kMiddleCenter);
  text->setLocation({100, 50, 0});
  OdGeExtents3d box;
  ASSERT_EQ(text->getGeomExtents(box), eOk);
  EXPECT_NEAR(box.center().x, 100, 0.5);
  EXPECT_NEAR(box.center().y, 50, 1.5);
  text->setHeight(40);
  OdGeExtents3d same;
  ASSERT_EQ(text->getGeomExtents(same), eOk);
  EXPECT_NEAR(same.minPoint().y, box.minPoint().y, 1e-9);
}

TEST_F(EntityFormat, a_capital_stands_on_its_bottom_point_around_its_middle_point_and_under_its_top_point) {
  text->setContents(u"H");
  text->setTextHeight(2.5);
  for (const double height : {0.0, 30.0}) {
    text->setHeight(height);
    for (const auto& [attachment, bottom] :
         {std::pair{OdDb::kBottomCenter, 0.0}, std::pair{OdDb::kMiddleCenter, -1.25},
          std::pair{OdDb::kTopCenter, -2.5}}) {
      text->setAttachment(attachment);
      const OdGeExtents3d ink = drawn().extents();
      EXPECT_NEAR(ink.minPoint().y, bottom, 0.02);
      EXPECT_NEAR(ink.maxPoint().y, bottom + 2.5, 0.02);
    }
  }
}

TEST_F(EntityFormat, several_lines_are_attached_by_the_first_top_and_the_last_baseline) {
  text->setContents(u"H\\PH\\PH");
  text->setTextHeight(3);
  EXPECT_NEAR(text->actualHeight(), 13, 1e-9);
  text->setAttachment(OdDb::kMiddleLeft);
  const OdGeExtents3d ink = drawn().extents();
  EXPECT_NEAR(ink.minPoint().y, -6.5, 0.02);
  EXPECT_NEAR(ink.maxPoint().y, 6.5, 0.02);
}

TEST_F(EntityFormat, a_new_attachment_that_moves_the_location_leaves_the_letters_where_they_were) {
  text->setContents(u"H\\PH");
  const OdGeExtents3d before = drawn().extents();
  for (int attachment = 9; attachment >= 1; --attachment) {
    text->setAttachmentMovingLocation(static_cast<OdDb::AttachmentPoint>(attachment));
    const OdGeExtents3d now = drawn().extents();
    EXPECT_NEAR(now.minPoint().y, before.minPoint().y, 1e-9) << attachment;
    EXPECT_NEAR(now.maxPoint().y, before.maxPoint().y, 1e-9) << attachment;
  }
}

TEST_F(EntityFormat, a_letter_is_drawn_within_the_extents) {
  text->setContents(u"H");
  text->setLocation({10, 10, 0});
  OdGeExtents3d box;
  ASSERT_EQ(text->getGeomExtents(box), eOk);
  ASSERT_EQ(drawn().count(OdGiPrimitive::kPolygon), 1);
  const auto ink = recorder.extents();
  EXPECT_GE(ink.minPoint().x, box.minPoint().x - 1e-9);
  EXPECT_NEAR(ink.maxPoint().y, 10, 0.1);
  EXPECT_NEAR(ink.minPoint().y, 7.5, 0.1);
}

TEST_F(EntityFormat, underline_and_overline_are_lines_below_and_above_each_letter) {
  text->setContents(u"{\\L\\OH}");
  EXPECT_EQ(drawn().count(OdGiPrimitive::kPolyline), 2);
  EXPECT_LT(recorder.extents().minPoint().y, -2.5);
  EXPECT_GT(recorder.extents().maxPoint().y, 0);
}

TEST_F(EntityFormat, a_fraction_has_a_line_and_a_diagonal_one_a_slanted_line) {
  text->setContents(u"\\S1/2;");
  EXPECT_EQ(drawn().count(OdGiPrimitive::kPolyline), 1);
  EXPECT_EQ(recorder.count(OdGiPrimitive::kPolygon), 2);
  const auto level = recorder.primitives().back().contours[0];
  EXPECT_DOUBLE_EQ(level[0].y, level[1].y);

  text->setContents(u"\\S1#2;");
  drawn();
  const auto slanted = recorder.primitives().back().contours[0];
  EXPECT_GT(slanted[1].y, slanted[0].y);
  EXPECT_GT(slanted[1].x, slanted[0].x);

  text->setContents(u"\\S1^2;");
  EXPECT_EQ(drawn().count(OdGiPrimitive::kPolyline), 0);
}

TEST_F(EntityFormat, letters_without_a_colour_take_the_entity_s) {
  text->setColorIndex(2);
  text->setContents(u"a{\\C1;b}{\\c16711680;c}");
  drawn();
  ASSERT_EQ(recorder.primitives().size(), 3U);
  EXPECT_EQ(recorder.primitives()[0].traits.color(), 2);
  EXPECT_EQ(recorder.primitives()[1].traits.color(), 1);
  EXPECT_EQ(recorder.primitives()[2].traits.trueColor(), OdCmEntityColor(0, 0, 255));
}
