#include <gtest/gtest.h>

#include <filesystem>
#include <numbers>

#include "od/db/OdDbArc.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbCircle.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbPolyline.h"
#include "od/db/database_field_source.h"

namespace {

template <typename T>
OdSmartPtr<T> added(OdDbDatabase& database) {
  auto entity = odNew<T>();
  odOpen<OdDbBlockTableRecord>(database.getModelSpaceId(), OdDb::kForWrite)->appendOdDbEntity(entity.get());
  return entity;
}

OdFieldValue property(const OdDbObject& object, std::u16string_view name) {
  return OdDbFieldSource(*object.database()).property(object.handle().value(), name).value_or(OdFieldValue());
}

double real(const OdFieldValue& value) { return std::get<double>(value); }

OdDbDatabasePtr withHeader(const std::string& groups) {
  return OdDbDatabase::readBytes(
      "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1018\n" + groups + "0\nENDSEC\n0\nEOF\n", "header");
}

}  // namespace

TEST(FieldSource, knows_the_day_and_the_days_of_the_drawing) {
  const OdDbDatabasePtr database = withHeader("9\n$TDCREATE\n40\n2451544.91568287\n");
  const OdFieldDate now{2020, 4, 2, 21, 16, 45, 39, 0};
  const OdDbFieldSource source(*database, now);
  EXPECT_EQ(std::get<OdFieldDate>(*source.variable(u"date")), now);
  const auto made = std::get<OdFieldDate>(*source.variable(u"CreateDate"));
  EXPECT_EQ(made.year * 10000 + made.month * 100 + made.day, 19991231);
  EXPECT_EQ(made.weekday, 5);
  EXPECT_EQ(made.hour * 100 + made.minute, 2158);
  EXPECT_FALSE(source.variable(u"SaveDate"));
}

TEST(FieldSource, knows_the_drawing_s_file) {
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "scribe_field_source";
  std::filesystem::create_directories(folder);
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const OdDbFieldSource source(*database);
  EXPECT_EQ(source.variable(u"Filename"), OdFieldValue()) << "a new drawing";
  database->writeFile(folder / "plan.dxf");
  EXPECT_EQ(source.variable(u"Filename"), OdFieldValue(OdString((folder / "plan.dxf").u16string())));
  EXPECT_EQ(source.variable(u"DwgName"), OdFieldValue(OdString(u"plan.dxf")));
  EXPECT_EQ(source.variable(u"DwgPrefix"), OdFieldValue(OdString((folder / "").u16string())));
  EXPECT_EQ(source.variable(u"Filesize"),
            OdFieldValue(static_cast<std::int32_t>(std::filesystem::file_size(folder / "plan.dxf"))));
  std::filesystem::remove_all(folder);
}

TEST(FieldSource, knows_the_drawing_s_properties) {
  const OdDbDatabasePtr database = withHeader(
      "9\n$LASTSAVEDBY\n1\nhanna\n9\n$CUSTOMPROPERTYTAG\n1\nClient\n9\n$CUSTOMPROPERTY\n1\nTown hall\n"
      "9\n$CUSTOMPROPERTYTAG\n1\nStage\n9\n$CUSTOMPROPERTY\n1\n4\n");
  const OdDbFieldSource source(*database);
  EXPECT_EQ(source.variable(u"LastSavedBy"), OdFieldValue(OdString(u"hanna")));
  EXPECT_EQ(source.variable(u"Author"), OdFieldValue(OdString()));
  EXPECT_EQ(source.variable(u"CustomDP.client"), OdFieldValue(OdString(u"Town hall")));
  EXPECT_EQ(source.variable(u"CustomDP.Stage"), OdFieldValue(OdString(u"4")));
  EXPECT_FALSE(source.variable(u"CustomDP.Other"));
}

TEST(FieldSource, finds_author_and_title_where_other_programs_keep_them) {
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(
      "0\nSECTION\n2\nHEADER\n9\n$"
      "ACADVER\n1\nAC1015\n0\nENDSEC\n0\nSECTION\n2\nOBJECTS\n0\nDICTIONARY\n5\nC\n100\n"
      "AcDbDictionary\n3\nDWGPROPS\n350\nD\n0\nXRECORD\n5\nD\n100\nAcDbXrecord\n1\nDWGPROPS "
      "COOKIE\n2\nGround floor\n3\n\n"
      "4\nAnn\n0\nENDSEC\n0\nEOF\n",
      "properties");
  const OdDbFieldSource source(*database);
  EXPECT_EQ(source.variable(u"Title"), OdFieldValue(OdString(u"Ground floor")));
  EXPECT_EQ(source.variable(u"Author"), OdFieldValue(OdString(u"Ann")));
}

TEST(FieldSource, knows_system_variables_with_their_types) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  database->setSysVarString(u"PROJECT", u"hall");
  const OdDbFieldSource source(*database);
  EXPECT_TRUE(std::holds_alternative<double>(*source.variable(u"TEXTSIZE")));
  EXPECT_EQ(source.variable(u"$LUNITS"), OdFieldValue(std::int32_t{2}));
  EXPECT_EQ(source.variable(u"CLAYER"), OdFieldValue(OdString(u"0")));
  EXPECT_EQ(source.variable(u"PROJECT"), OdFieldValue(OdString(u"hall")));
  EXPECT_FALSE(source.variable(u"NOSUCH"));
}

TEST(FieldSource, knows_layer_and_colour_of_objects) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto line = added<OdDbLine>(*database);
  EXPECT_EQ(property(*line, u"layer"), OdFieldValue(OdString(u"0")));
  EXPECT_EQ(property(*line, u"Color"), OdFieldValue(OdString(u"ByLayer")));
  line->setColorIndex(3);
  EXPECT_EQ(property(*line, u"Color"), OdFieldValue(OdString(u"3")));
  line->setColor(OdCmEntityColor(1, 20, 200));
  EXPECT_EQ(property(*line, u"Color"), OdFieldValue(OdString(u"1,20,200")));
}

TEST(FieldSource, measures_curves) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto line = added<OdDbLine>(*database);
  line->setEndPoint({3, 4, 0});
  EXPECT_DOUBLE_EQ(real(property(*line, u"Length")), 5);
  EXPECT_EQ(property(*line, u"Area"), OdFieldValue());
  const auto circle = added<OdDbCircle>(*database);
  circle->setRadius(2);
  EXPECT_DOUBLE_EQ(real(property(*circle, u"Radius")), 2);
  EXPECT_DOUBLE_EQ(real(property(*circle, u"Area")), 4 * std::numbers::pi);
  const auto arc = added<OdDbArc>(*database);
  arc->setRadius(1);
  arc->setStartAngle(1.5 * std::numbers::pi);
  arc->setEndAngle(0.5 * std::numbers::pi);
  EXPECT_NEAR(real(property(*arc, u"Length")), std::numbers::pi, 1e-12);
  EXPECT_NEAR(real(property(*arc, u"Area")), std::numbers::pi / 2, 1e-12);
}

TEST(FieldSource, measures_polylines_with_arcs) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto shape = added<OdDbPolyline>(*database);
  shape->addVertexAt(0, {0, 0}, 1);
  shape->addVertexAt(1, {2, 0}, 0);
  shape->addVertexAt(2, {2, 3}, 0);
  shape->addVertexAt(3, {0, 3}, 0);
  EXPECT_NEAR(real(property(*shape, u"Length")), std::numbers::pi + 5, 1e-12);
  EXPECT_NEAR(real(property(*shape, u"Area")), 6 + std::numbers::pi / 2, 1e-12);
  shape->setClosed(true);
  EXPECT_NEAR(real(property(*shape, u"Length")), std::numbers::pi + 8, 1e-12);
}

TEST(FieldSource, has_nothing_of_objects_that_are_gone_or_are_no_entities) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto line = added<OdDbLine>(*database);
  line->erase();
  EXPECT_EQ(property(*line, u"Length"), OdFieldValue());
  const OdDbFieldSource source(*database);
  EXPECT_FALSE(source.property(0, u"Length"));
  EXPECT_FALSE(source.property(database->getLayerTableId().handle().value(), u"Layer"));
}
