#include <gtest/gtest.h>

#include <numbers>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbMText.h"
#include "od/db/field_reader.h"
#include "od/gi/OdGiRecorder.h"
#include "tests/od/db/group_lines.h"

namespace {

std::string file(const std::string& version, const std::string& groups, const std::string& objects = "") {
  return lines("0 SECTION 2 HEADER 9 $ACADVER 1 " + version +
               " 0 ENDSEC 0 SECTION 2 ENTITIES 0 MTEXT 5 20 102 {ACAD_XDICTIONARY 360 21 102 } 330 1F "
               "100 AcDbEntity 8 0 100 AcDbMText 10 0.0 20 0.0 30 0.0 40 2.5 " +
               groups + " 0 ENDSEC " + "0 SECTION 2 OBJECTS " + objects + "0 ENDSEC 0 EOF");
}

struct Sample {
  OdDbDatabasePtr database;
  OdDbMTextPtr text;

  explicit Sample(const std::string& bytes) : database(OdDbDatabase::readBytes(bytes, "sample")) {
    const auto space = odOpen<OdDbBlockTableRecord>(database->getModelSpaceId());
    text = odOpen<OdDbMText>(space->entities().at(0), OdDb::kForWrite);
  }
};

/// A layout that says every text is 8 wide and 4 high, below and to the right of the location.
struct FixedLayout : OdDbMTextLayout {
  OdDbMTextMeasure measure(const OdDbMText&) override { return {8, 4, {0, -4}, {8, 0}}; }
  std::vector<OdString> columnContents(const OdDbMText&, Spelling) override { return {}; }
  void draw(const OdDbMText&, OdGiWorldDraw& draw) override {
    draw.geometry().polyline({OdGePoint3d{0, 0, 0}, OdGePoint3d{8, -4, 0}});
  }
};

const std::string kEmbedded =
    "41 20.0 46 0.0 71 1 72 5 1 text 73 1 44 1.0 101 Embedded~Object 70 1 10 1.0 20 0.0 30 0.0 11 0.0 21 0.0 "
    "31 0.0 "
    "40 20.0 41 0.0 42 18.0 43 6.0 71 2 72 2 44 8.0 45 2.0 73 0 74 0 46 5.0 46 0.0";

const std::string kXdataColumns =
    "1 text 1001 ACAD 1000 ACAD_MTEXT_COLUMN_INFO_BEGIN 1070 75 1070 2 1070 79 1070 0 1070 76 1070 2 1070 78 "
    "1070 0 "
    "1070 48 1040 8.0 1070 49 1040 2.0 1070 50 1070 2 1040 5.0 1040 0.0 1000 ACAD_MTEXT_COLUMN_INFO_END "
    "1000 ACAD_MTEXT_DEFINED_HEIGHT_BEGIN 1070 46 1040 7.0 1000 ACAD_MTEXT_DEFINED_HEIGHT_END";

}  // namespace

TEST(MText, contents_are_cut_into_pieces_of_250_and_joined_again) {
  const Sample sample(file("AC1015", "1 short"));
  const std::u16string text(500, u'a');
  sample.text->setContents(text);
  const std::string bytes = sample.database->writeBytes();
  const std::string piece(250, 'a');
  EXPECT_NE(bytes.find("3\n" + piece + "\n"), std::string::npos);
  EXPECT_EQ(Sample(bytes).text->contents(), OdString(text));
}

TEST(MText, of_direction_and_rotation_the_last_one_counts) {
  EXPECT_NEAR(Sample(file("AC1015", "1 t 11 0.0 21 1.0 31 0.0 50 180.0")).text->rotation(), std::numbers::pi,
              1e-12);
  EXPECT_NEAR(Sample(file("AC1015", "1 t 50 180.0 11 0.0 21 1.0 31 0.0")).text->rotation(),
              std::numbers::pi / 2, 1e-12);
}

TEST(MText, without_direction_and_rotation_it_runs_along_the_worlds_x_axis_from_behind_too) {
  EXPECT_TRUE(Sample(file("AC1015", "1 t 210 0.0 220 0.0 230 -1.0")).text->direction().isEqualTo({1, 0, 0}));
  EXPECT_TRUE(Sample(file("AC1015", "1 t 210 1.0 220 0.0 230 0.0")).text->direction().isEqualTo({0, 1, 0}));
}

TEST(MText, turning_writes_a_direction_and_no_angle) {
  const Sample sample(file("AC1015", "1 t 50 30.0"));
  sample.text->setRotation(std::numbers::pi / 2);
  EXPECT_EQ(sample.database->writeBytes().find("\n50\n"), std::string::npos);
  EXPECT_NEAR(Sample(sample.database->writeBytes()).text->direction().y, 1, 1e-12);
}

TEST(MText, a_count_of_columns_beyond_all_measure_is_bounded) {
  std::string embedded = kEmbedded, xdata = kXdataColumns, widths = kEmbedded;
  embedded.replace(embedded.find("72 2 "), 5, "72 2000000000 ");
  xdata.replace(xdata.find("1070 76 1070 2 "), 15, "1070 76 1070 2000000000 ");
  widths.replace(widths.find("72 2 "), 5, "72 0 ").replace(widths.find("42 18.0"), 7, "42 1e300");
  for (const std::string& bytes : {file("AC1032", embedded), file("AC1015", xdata), file("AC1032", widths)})
    EXPECT_EQ(Sample(bytes).text->getColumnCount(), 10'000);
}

TEST(MText, columns_are_read_from_the_embedded_object) {
  const Sample sample(file("AC1032", kEmbedded));
  EXPECT_EQ(sample.text->getColumnType(), OdDb::kDynamicColumns);
  EXPECT_EQ(sample.text->getColumnCount(), 2);
  EXPECT_EQ(sample.text->getColumnWidth(), 8);
  EXPECT_EQ(sample.text->getColumnGutterWidth(), 2);
  EXPECT_EQ(sample.text->getColumnHeight(0), 5);
  EXPECT_EQ(sample.text->getColumnHeight(7), 0);
  EXPECT_EQ(sample.text->textHeight(), 2.5);
  EXPECT_EQ(sample.text->actualWidth(), 18);
}

TEST(MText, a_missing_number_of_columns_follows_from_the_width) {
  std::string groups = kEmbedded;
  groups.replace(groups.find("72 2 44"), 4, "72 0");
  EXPECT_EQ(Sample(file("AC1032", groups)).text->getColumnCount(), 2);
}

TEST(MText, columns_are_read_from_the_extended_data_of_older_drawings) {
  const Sample sample(file("AC1021", kXdataColumns));
  EXPECT_EQ(sample.text->getColumnType(), OdDb::kDynamicColumns);
  EXPECT_EQ(sample.text->getColumnCount(), 2);
  EXPECT_EQ(sample.text->getColumnWidth(), 8);
  EXPECT_EQ(sample.text->getColumnHeight(0), 5);
  EXPECT_EQ(sample.text->height(), 7);
}

TEST(MText, a_changed_column_is_written_in_the_form_of_the_file) {
  const Sample fresh(file("AC1032", kEmbedded));
  fresh.text->setColumnGutterWidth(3);
  std::string expected = file("AC1032", kEmbedded);
  expected.replace(expected.find("\n45\n2.0"), 7, "\n45\n3.0");
  EXPECT_EQ(fresh.database->writeBytes(), expected);

  const Sample old(file("AC1021", kXdataColumns));
  old.text->setColumnGutterWidth(3);
  expected = file("AC1021", kXdataColumns);
  expected.replace(expected.find("\n49\n1040\n2.0"), 12, "\n49\n1040\n3.0");
  EXPECT_EQ(old.database->writeBytes(), expected);
}

TEST(MText, width_and_location_stand_in_the_embedded_object_too) {
  const Sample sample(file("AC1032", kEmbedded));
  sample.text->setWidth(33);
  sample.text->setLocation({4, 5, 0});
  const std::string bytes = sample.database->writeBytes();
  EXPECT_NE(bytes.find("\n40\n33.0\n"), std::string::npos);
  EXPECT_NE(bytes.find("\n11\n4.0\n21\n5.0\n"), std::string::npos);
}

TEST(MText, a_location_that_differs_by_rounding_alone_changes_nothing) {
  const Sample sample(file("AC1015", "1 t"));
  sample.text->setLocation({1e-13, -1e-13, 0});
  EXPECT_EQ(sample.database->writeBytes(), file("AC1015", "1 t"));
}

TEST(MText, the_true_text_beside_a_simplified_one_counts_until_somebody_edits) {
  const std::string objects =
      "0 DICTIONARY 5 21 330 20 100 AcDbDictionary 3 ACAD_MTEXT_RT 360 22 "
      "0 XRECORD 5 22 330 21 100 AcDbXrecord 280 1 40 ";
  // "ab" sums to 1 * 97 + 2 * 98.
  const Sample fresh(file("AC1015", "1 ab", objects + "293.0 1 true~ 1 text "));
  EXPECT_EQ(fresh.text->contents(), OdString(u"true text"));
  fresh.text->setContents(u"edited");
  EXPECT_EQ(fresh.text->contents(), OdString(u"edited"));
  EXPECT_EQ(Sample(fresh.database->writeBytes()).text->contents(), OdString(u"edited"));

  const Sample stale(file("AC1015", "1 ab", objects + "294.0 1 true~ 1 text "));
  EXPECT_EQ(stale.text->contents(), OdString(u"ab"));
}

TEST(MText, an_edit_with_the_same_checksum_refreshes_the_true_text) {
  const std::string objects =
      "0 DICTIONARY 5 21 330 20 100 AcDbDictionary 3 ACAD_MTEXT_RT 360 22 "
      "0 XRECORD 5 22 330 21 100 AcDbXrecord 280 1 40 293.0 1 true ";
  const Sample sample(file("AC1015", "1 ab", objects));
  const std::u16string twin = u"ca";  // 99 + 2 * 97 = 293
  ASSERT_EQ(odTextChecksum(twin), 293);
  sample.text->setContents(twin);
  EXPECT_EQ(Sample(sample.database->writeBytes()).text->contents(), OdString(twin));
}

TEST(MText, a_missing_style_is_standard) {
  const Sample sample(file("AC1015", "1 t 7 NoSuchStyle"));
  EXPECT_EQ(sample.text->textStyleName(), OdString(u"NoSuchStyle"));
  EXPECT_FALSE(sample.text->textStyle().isNull());
  sample.text->setTextStyle(sample.text->textStyle());
  EXPECT_FALSE(sample.database->isModified());
}

TEST(MText, a_new_attachment_keeps_the_text_in_its_place) {
  const Sample sample(file("AC1015", "1 t 71 1 11 0.0 21 1.0 31 0.0"));
  sample.database->setTextLayout(std::make_shared<FixedLayout>());
  sample.text->setAttachmentMovingLocation(OdDb::kBottomRight);
  EXPECT_EQ(sample.text->attachment(), OdDb::kBottomRight);
  // The text runs upwards: 8 along y, and 4 to the right of its top.
  EXPECT_NEAR(sample.text->location().x, 4, 1e-12);
  EXPECT_NEAR(sample.text->location().y, 8, 1e-12);
}

TEST(MText, size_extents_and_picture_come_from_the_layout) {
  const Sample sample(file("AC1018", "1 t 90 1 63 5 45 1.0"));
  sample.database->setTextLayout(std::make_shared<FixedLayout>());
  sample.text->setLocation({10, 10, 0});
  EXPECT_EQ(sample.text->actualWidth(), 8);
  EXPECT_EQ(sample.text->actualHeight(), 4);
  OdGeExtents3d extents;
  sample.text->getGeomExtents(extents);
  EXPECT_EQ(extents.minPoint(), (OdGePoint3d{10, 6, 0}));
  OdGiRecorder recorder;
  recorder.record(*sample.text);
  ASSERT_EQ(recorder.primitives().size(), 2u);
  EXPECT_EQ(recorder.primitives()[0].kind, OdGiPrimitive::kPolygon);
  EXPECT_EQ(recorder.primitives()[0].traits.color(), 5);
  EXPECT_EQ(recorder.primitives()[1].contours[0][1], (OdGePoint3d{18, 6, 0}));
}

TEST(MText, the_fill_of_old_drawings_stands_in_the_extended_data) {
  const Sample sample(
      file("AC1015",
           "1 t 1001 ACAD 1000 ACAD_MTEXT_BBRT 1070 91 1071 1 1070 46 1040 1.25 1070 64 1071 -1040187382 "
           "1000 ACAD_MTEXT_BERT"));
  EXPECT_TRUE(sample.text->backgroundFill());
  EXPECT_EQ(sample.text->getBackgroundScaleFactor(), 1.25);
  sample.text->setBackgroundFill(false);
  EXPECT_FALSE(Sample(sample.database->writeBytes()).text->backgroundFill());
}
