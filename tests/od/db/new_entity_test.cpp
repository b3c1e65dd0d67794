#include <gtest/gtest.h>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbPolyline.h"
#include "od/db/OdDbText.h"

namespace {

OdDbObjectId append(OdDbDatabase& database, OdDbEntity* entity) {
  return odOpen<OdDbBlockTableRecord>(database.getModelSpaceId(), OdDb::kForWrite)->appendOdDbEntity(entity);
}

template <typename T>
OdSmartPtr<T> lastOf(OdDbDatabase& database) {
  return odOpen<T>(odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities().back());
}

/// The lines of a drawing from the first `0:TYPE` on, trimmed, up to the next record.
std::string recordText(const std::string& bytes, const std::string& type) {
  const std::size_t begin = bytes.rfind("\n" + type);
  const std::size_t end = bytes.find("\n  0", begin + 1);
  return bytes.substr(begin + 1, end - begin);
}

struct NewEntity : testing::TestWithParam<dxf::Version> {};

}  // namespace

INSTANTIATE_TEST_SUITE_P(EachVersion, NewEntity,
                         testing::Values(dxf::R12, dxf::R2000, dxf::R2004, dxf::R2007, dxf::R2010, dxf::R2013,
                                         dxf::R2018));

TEST_P(NewEntity, a_multi_line_text_reads_back) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(GetParam());
  const auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(database.get());
  text->setContents(u"one\\Ptwo" + std::u16string(600, u'x'));
  text->setLocation({10, 20, 0});
  text->setTextHeight(3.5);
  text->setWidth(80);
  text->setHeight(40);
  text->setAttachment(OdDb::kMiddleCenter);
  text->setRotation(0.5);
  append(*database, text.get());

  const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes(), "again");
  const auto read = lastOf<OdDbMText>(*again);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->contents(), text->contents());
  EXPECT_EQ(read->location(), (OdGePoint3d{10, 20, 0}));
  EXPECT_EQ(read->textHeight(), 3.5);
  EXPECT_EQ(read->width(), 80);
  EXPECT_EQ(read->height(), 40);
  EXPECT_EQ(read->attachment(), OdDb::kMiddleCenter);
  EXPECT_NEAR(read->rotation(), 0.5, 1e-14);
}

TEST_P(NewEntity, a_text_with_columns_and_a_background_reads_back) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(GetParam());
  const auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(database.get());
  text->setContents(u"columns");
  text->setColumnType(OdDb::kDynamicColumns);
  text->setColumnCount(2);
  text->setColumnWidth(30);
  text->setColumnGutterWidth(5);
  text->setColumnHeight(0, 12);
  text->setColumnHeight(1, 0);
  text->setBackgroundFill(true);
  text->setBackgroundFillColor(OdCmEntityColor(10, 20, 30));
  text->setBackgroundScaleFactor(2);
  append(*database, text.get());

  const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes(), "again");
  const auto read = lastOf<OdDbMText>(*again);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->getColumnType(), OdDb::kDynamicColumns);
  EXPECT_EQ(read->getColumnCount(), 2);
  EXPECT_EQ(read->getColumnWidth(), 30);
  EXPECT_EQ(read->getColumnGutterWidth(), 5);
  EXPECT_FALSE(read->getColumnAutoHeight());
  EXPECT_EQ(read->getColumnHeight(0), 12);
  EXPECT_TRUE(read->backgroundFill());
  EXPECT_FALSE(read->isBackgroundColorUsed());
  EXPECT_EQ(OdCmEntityColor(read->getBackgroundFillColor()), OdCmEntityColor(10, 20, 30));
  EXPECT_EQ(read->getBackgroundScaleFactor(), 2);
}

TEST_P(NewEntity, a_single_line_text_reads_back) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(GetParam());
  const auto text = odNew<OdDbText>();
  text->setDatabaseDefaults(database.get());
  text->setTextString(u"R\u00F6hre");
  text->setPosition({1, 2, 0});
  text->setHorizontalMode(OdDb::kTextRight);
  text->setVerticalMode(OdDb::kTextTop);
  text->setAlignmentPoint({7, 8, 0});
  append(*database, text.get());

  const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes(), "again");
  const auto read = lastOf<OdDbText>(*again);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->textString(), OdString(u"R\u00F6hre"));
  EXPECT_EQ(read->horizontalMode(), OdDb::kTextRight);
  EXPECT_EQ(read->verticalMode(), OdDb::kTextTop);
  EXPECT_EQ(read->alignmentPoint(), (OdGePoint3d{7, 8, 0}));
  EXPECT_EQ(read->position(), (OdGePoint3d{1, 2, 0}));
}

TEST_P(NewEntity, gets_a_handle_that_no_other_object_has) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(GetParam());
  const OdString seedBefore = database->getSysVarString(u"HANDSEED", u"");
  const OdDbObjectId first = append(*database, odNew<OdDbLine>().get());
  const OdDbObjectId second = append(*database, odNew<OdDbLine>().get());
  EXPECT_NE(first.handle(), second.handle());
  EXPECT_EQ(database->getOdDbObjectId(first.handle()), first);
  if (GetParam() >= dxf::R2000) {
    EXPECT_NE(database->getSysVarString(u"HANDSEED", u""), seedBefore);
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes(), "again");
    EXPECT_EQ(lastOf<OdDbLine>(*again)->handle(), second.handle());
    EXPECT_EQ(lastOf<OdDbLine>(*again)->ownerId(), again->getModelSpaceId());
  }
}

TEST(NewEntityForm, has_owner_and_subclass_markers_from_r2000_on) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R2000);
  append(*database, odNew<OdDbLine>().get());
  const std::string line = recordText(database->writeBytes(), "LINE");
  EXPECT_NE(line.find("AcDbEntity"), std::string::npos);
  EXPECT_NE(line.find("AcDbLine"), std::string::npos);
  EXPECT_NE(line.find("330"), std::string::npos);
}

TEST(NewEntityForm, has_neither_in_a_drawing_without_handles) {
  const OdDbDatabasePtr database =
      OdDbDatabase::readBytes("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n", "minimal");
  append(*database, odNew<OdDbLine>(OdGePoint3d{1, 2, 3}, OdGePoint3d{4, 5, 6}).get());
  EXPECT_EQ(database->writeBytes(),
            "  0\nSECTION\n  2\nENTITIES\n"
            "  0\nLINE\n  8\n0\n 10\n1.0\n 20\n2.0\n 30\n3.0\n 11\n4.0\n 21\n5.0\n 31\n6.0\n"
            "  0\nENDSEC\n  0\nEOF\n");
}

TEST(NewEntityForm, on_paper_is_marked_so) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R2000);
  odOpen<OdDbBlockTableRecord>(database->getPaperSpaceId(), OdDb::kForWrite)
      ->appendOdDbEntity(odNew<OdDbLine>().get());
  const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes(), "again");
  const auto ids = odOpen<OdDbBlockTableRecord>(again->getPaperSpaceId())->entities();
  ASSERT_FALSE(ids.empty());
  EXPECT_TRUE(odOpen<OdDbLine>(ids.back())->isPaperSpace());
}

TEST(NewEntityForm, a_character_that_the_code_page_lacks_is_escaped_and_still_equal) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R2000);
  const auto text = odNew<OdDbMText>();
  text->setContents(u"\u2205 12");
  append(*database, text.get());
  EXPECT_EQ(text->contents(), OdString(u"\\U+2205 12"));
  const std::string before = database->writeBytes();
  text->setContents(u"\u2205 12");
  EXPECT_TRUE(database->writeBytes() == before);
}

TEST(NewEntityForm, a_polyline_keeps_its_vertices_and_bulges) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R2010);
  const auto line = odNew<OdDbPolyline>();
  line->addVertexAt(0, {0, 0});
  line->addVertexAt(1, {10, 10}, 0.5);
  line->addVertexAt(1, {10, 0});
  line->setPointAt(0, {-1, -2});
  line->setClosed(true);
  append(*database, line.get());
  const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes(), "again");
  const auto read = lastOf<OdDbPolyline>(*again);
  ASSERT_EQ(read->numVerts(), 3u);
  EXPECT_EQ(read->getPointAt(0), (OdGePoint2d{-1, -2}));
  EXPECT_EQ(read->getPointAt(1), (OdGePoint2d{10, 0}));
  EXPECT_EQ(read->getBulgeAt(2), 0.5);
  EXPECT_TRUE(read->isClosed());
  EXPECT_THROW(read->getPointAt(3), OdError_InvalidIndex);
}

TEST(Clone, of_an_entity_changes_alone_and_leaves_the_drawing_as_it_was) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  auto text = odNew<OdDbText>();
  text->setDatabaseDefaults(database.get());
  text->setTextString(u"one");
  text->setHorizontalMode(OdDb::kTextRight);
  odOpen<OdDbBlockTableRecord>(database->getModelSpaceId(), OdDb::kForWrite)->appendOdDbEntity(text.get());
  const std::string before = database->writeBytes();
  const auto copy = odCastOrThrow<OdDbText>(text->clone());
  EXPECT_FALSE(copy->isDBRO());
  EXPECT_EQ(copy->database(), database.get());
  EXPECT_EQ(copy->horizontalMode(), OdDb::kTextRight);
  copy->setTextString(u"two");
  EXPECT_EQ(text->textString(), OdString(u"one"));
  EXPECT_EQ(database->writeBytes(), before);
}
