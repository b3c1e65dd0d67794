#include <gtest/gtest.h>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbLinetypeTableRecord.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/db/OdDbViewportTableRecord.h"

namespace {

OdDbDatabasePtr read(const std::string& groups) {
  std::string lines = groups;
  for (char& c : lines) {
    if (c == ' ') c = '\n';
    if (c == '~') c = ' ';
  }
  return OdDbDatabase::readBytes(lines + "\n0\nEOF\n", "tables");
}

const std::string kTables =
    "0 SECTION 2 HEADER 9 $TEXTSIZE 40 3.5 9 $TEXTSTYLE 7 roman 9 $CLAYER 8 Walls 9 $LUPREC 70 4 0 ENDSEC "
    "0 SECTION 2 TABLES "
    "0 TABLE 2 VPORT 70 1 0 VPORT 2 *Active 70 0 12 5.0 22 6.0 40 100.0 41 1.5 0 ENDTAB "
    "0 TABLE 2 LTYPE 70 1 0 LTYPE 2 DASHED 70 0 3 dashes 72 65 73 2 40 3.0 49 2.0 49 -1.0 0 ENDTAB "
    "0 TABLE 2 LAYER 70 2 0 LAYER 2 0 70 0 62 7 0 LAYER 2 Walls 70 4 62 -3 370 25 0 ENDTAB "
    "0 TABLE 2 STYLE 70 2 0 STYLE 2  70 1 40 0.0 3 shapes.shx "
    "0 STYLE 2 Roman 70 4 40 2.0 41 0.8 50 15.0 71 2 42 2.5 3 arial.ttf 4 big.shx "
    "1001 ACAD 1000 Arial 1071 50331682 0 ENDTAB 0 ENDSEC";

template <typename T>
OdSmartPtr<T> record(OdDbObjectId table, const char16_t* name) {
  return odOpen<T>(odOpen<OdDbSymbolTable>(table)->getAt(name), OdDb::kForWrite);
}

}  // namespace

TEST(Tables, find_their_records_without_case) {
  const OdDbDatabasePtr database = read(kTables);
  const auto layers = odOpen<OdDbSymbolTable>(database->getLayerTableId());
  EXPECT_EQ(layers->records().size(), 2u);
  EXPECT_TRUE(layers->has(u"WALLS"));
  EXPECT_TRUE(layers->getAt(u"roof").isNull());
  EXPECT_EQ(odOpen<OdDbLayerTableRecord>(layers->getAt(u"walls"))->getName(), OdString(u"Walls"));
  EXPECT_EQ(layers->getAt(u"walls"), database->getCLAYER());
}

TEST(Tables, a_layer_is_off_when_its_colour_is_negative) {
  const OdDbDatabasePtr database = read(kTables);
  const auto walls = record<OdDbLayerTableRecord>(database->getLayerTableId(), u"Walls");
  EXPECT_TRUE(walls->isOff());
  EXPECT_TRUE(walls->isLocked());
  EXPECT_FALSE(walls->isFrozen());
  EXPECT_EQ(walls->color().colorIndex(), 3);
  EXPECT_EQ(walls->lineWeight(), 25);
  walls->setIsOff(false);
  walls->setIsLocked(false);
  EXPECT_FALSE(walls->isOff());
  EXPECT_FALSE(walls->isLocked());
  EXPECT_EQ(walls->color().colorIndex(), 3);
}

TEST(Tables, a_style_gives_its_typeface_from_the_extended_data) {
  const OdDbDatabasePtr database = read(kTables);
  const auto style = record<OdDbTextStyleTableRecord>(database->getTextStyleTableId(), u"Roman");
  OdString typeface;
  bool bold = false, italic = false;
  int charset = -1, pitch = -1;
  style->font(typeface, bold, italic, charset, pitch);
  EXPECT_EQ(typeface, OdString(u"Arial"));
  EXPECT_TRUE(bold);
  EXPECT_TRUE(italic);
  EXPECT_EQ(charset, 0);
  EXPECT_EQ(pitch, 34);
  EXPECT_EQ(style->fileName(), OdString(u"arial.ttf"));
  EXPECT_EQ(style->bigFontFileName(), OdString(u"big.shx"));
  EXPECT_EQ(style->textSize(), 2.0);
  EXPECT_EQ(style->priorSize(), 2.5);
  EXPECT_EQ(style->xScale(), 0.8);
  EXPECT_NEAR(style->obliquingAngle(), 0.2617993877991494, 1e-15);
  EXPECT_TRUE(style->isVertical());
  EXPECT_TRUE(style->isBackward());
  EXPECT_FALSE(style->isUpsideDown());
}

TEST(Tables, records_of_shape_files_have_no_name_to_be_found_by) {
  const OdDbDatabasePtr database = read(kTables);
  const auto styles = odOpen<OdDbSymbolTable>(database->getTextStyleTableId());
  EXPECT_TRUE(styles->getAt(u"").isNull());
  EXPECT_TRUE(odOpen<OdDbTextStyleTableRecord>(styles->records()[0])->isShapeFile());
}

TEST(Tables, a_typeface_set_and_set_again_keeps_one_pair_of_groups) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R2000);
  const auto style = odOpen<OdDbTextStyleTableRecord>(database->getTEXTSTYLE(), OdDb::kForWrite);
  style->setFont(u"Arial", true, false, 204, 34);
  style->setFont(u"Verdana", false, true, 204, 34);
  const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes(), "again");
  OdString typeface;
  bool bold = true, italic = false;
  int charset = 0, pitch = 0;
  odOpen<OdDbTextStyleTableRecord>(again->getTEXTSTYLE())->font(typeface, bold, italic, charset, pitch);
  EXPECT_EQ(typeface, OdString(u"Verdana"));
  EXPECT_FALSE(bold);
  EXPECT_TRUE(italic);
  EXPECT_EQ(charset, 204);
}

TEST(Tables, linetypes_and_views_tell_their_numbers) {
  const OdDbDatabasePtr database = read(kTables);
  const auto dashed = record<OdDbLinetypeTableRecord>(database->getLinetypeTableId(), u"dashed");
  EXPECT_EQ(dashed->dashes(), (std::vector<double>{2, -1}));
  EXPECT_EQ(dashed->patternLength(), 3);
  const auto view = record<OdDbViewportTableRecord>(database->getViewportTableId(), u"*ACTIVE");
  EXPECT_EQ(view->centerPoint(), (OdGePoint2d{5, 6}));
  EXPECT_EQ(view->width(), 150);
}

TEST(SystemVariables, come_from_the_header_and_go_there) {
  const OdDbDatabasePtr database = read(kTables);
  EXPECT_EQ(database->getSysVarDouble(u"textsize", 1), 3.5);
  EXPECT_EQ(database->getSysVarInt(u"$LUPREC", 0), 4);
  EXPECT_EQ(database->getSysVarString(u"TextStyle", u""), OdString(u"roman"));
  database->setSysVarDouble(u"TEXTSIZE", 3.5);
  EXPECT_FALSE(database->isModified());
  database->setSysVarDouble(u"TEXTSIZE", 5);
  EXPECT_TRUE(database->isModified());
  EXPECT_EQ(OdDbDatabase::readBytes(database->writeBytes(), "again")->getSysVarDouble(u"TEXTSIZE", 1), 5);
  EXPECT_THROW(database->setSysVarString(u"TEXTSIZE", u"big"), OdError);
}

TEST(SystemVariables, that_the_header_lacks_live_with_the_database) {
  const OdDbDatabasePtr database = read(kTables);
  const std::string before = database->writeBytes();
  EXPECT_EQ(database->getSysVarInt(u"TEXTALLCAPS", 7), 7);
  database->setSysVarInt(u"TEXTALLCAPS", 1);
  EXPECT_EQ(database->getSysVarInt(u"TextAllCaps", 7), 1);
  EXPECT_EQ(database->getSysVarDouble(u"TEXTALLCAPS", 7), 1);
  EXPECT_FALSE(database->isModified());
  EXPECT_TRUE(database->writeBytes() == before);
}

TEST(Spaces, are_model_and_paper_and_the_active_one_follows_tilemode) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R2010);
  EXPECT_TRUE(odOpen<OdDbBlockTableRecord>(database->getModelSpaceId())->isModelSpace());
  EXPECT_TRUE(odOpen<OdDbBlockTableRecord>(database->getPaperSpaceId())->isPaperSpace());
  EXPECT_EQ(database->getActiveSpaceId(), database->getModelSpaceId());
  database->setSysVarInt(u"TILEMODE", 0);
  EXPECT_EQ(database->getActiveSpaceId(), database->getPaperSpaceId());
  database->setActiveSpaceId(database->getModelSpaceId());
  EXPECT_EQ(database->getActiveSpaceId(), database->getModelSpaceId());
  EXPECT_EQ(odOpen<OdDbBlockTableRecord>(database->getModelSpaceId())->layoutName(), OdString(u"Model"));
}
