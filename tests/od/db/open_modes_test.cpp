#include <gtest/gtest.h>

#include <functional>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLine.h"

namespace {

struct OpenModes : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  OdDbObjectId line = append();

  OdDbObjectId append() {
    const auto space = odOpen<OdDbBlockTableRecord>(database->getModelSpaceId(), OdDb::kForWrite);
    return space->appendOdDbEntity(odNew<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{1, 1, 0}).get());
  }

  static OdResult codeOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const OdError& error) {
      return error.code();
    }
    return eOk;
  }
};

}  // namespace

TEST_F(OpenModes, a_null_id_cannot_be_opened) {
  EXPECT_EQ(codeOf([] { OdDbObjectId().openObject(); }), eNullObjectId);
  EXPECT_EQ(codeOf([] { OdDbObjectId().safeOpenObject(); }), eNullObjectId);
}

TEST_F(OpenModes, an_erased_object_opens_only_when_asked_for) {
  line.openObject(OdDb::kForWrite)->erase();
  EXPECT_EQ(codeOf([&] { line.openObject(); }), eWasErased);
  line.openObject(OdDb::kForWrite, true)->erase(false);
  EXPECT_FALSE(line.openObject()->isErased());
}

TEST_F(OpenModes, a_second_writer_is_refused_until_the_first_one_ends) {
  OdDbObjectPtr writer = line.openObject(OdDb::kForWrite);
  EXPECT_EQ(codeOf([&] { line.openObject(OdDb::kForWrite); }), eWasOpenForWrite);
  writer.release();
  EXPECT_EQ(codeOf([&] { line.openObject(OdDb::kForWrite); }), eOk);
}

TEST_F(OpenModes, reading_beside_a_writer_is_allowed) {
  const OdDbObjectPtr writer = line.openObject(OdDb::kForWrite);
  EXPECT_EQ(codeOf([&] { line.openObject(OdDb::kForRead); }), eOk);
  EXPECT_TRUE(writer->isWriteEnabled());
}

TEST_F(OpenModes, what_is_open_for_read_cannot_be_changed_before_it_is_upgraded) {
  const auto reader = odOpen<OdDbLine>(line);
  EXPECT_EQ(codeOf([&] { reader->setStartPoint({5, 5, 0}); }), eNotOpenForWrite);
  reader->upgradeOpen();
  reader->setStartPoint({5, 5, 0});
  reader->downgradeOpen();
  EXPECT_EQ(codeOf([&] { reader->setStartPoint({6, 6, 0}); }), eNotOpenForWrite);
  EXPECT_EQ(reader->startPoint(), (OdGePoint3d{5, 5, 0}));
}

TEST_F(OpenModes, an_object_outside_the_database_may_always_be_changed) {
  OdDbLine* made = new OdDbLine;
  const OdDbLinePtr owner(made, kOdRxObjAttach);
  owner->setEndPoint({3, 4, 0});
  EXPECT_TRUE(owner->objectId().isNull());
  EXPECT_EQ(owner->endPoint(), (OdGePoint3d{3, 4, 0}));
}

TEST_F(OpenModes, an_entity_is_appended_once) {
  const auto space = odOpen<OdDbBlockTableRecord>(database->getModelSpaceId(), OdDb::kForWrite);
  const OdDbObjectPtr present = line.openObject();
  EXPECT_EQ(codeOf([&] { space->appendOdDbEntity(odCast<OdDbEntity>(present).get()); }), eAlreadyInDb);
}

TEST_F(OpenModes, an_open_object_keeps_its_database_alive) {
  auto reader = odOpen<OdDbLine>(line);
  database.release();
  EXPECT_EQ(reader->endPoint(), (OdGePoint3d{1, 1, 0}));
  EXPECT_NE(reader->database(), nullptr);
  reader.release();
}

TEST_F(OpenModes, hiding_an_entity_is_never_written) {
  const std::string before = database->writeBytes();
  const auto entity = odOpen<OdDbLine>(line, OdDb::kForWrite);
  entity->setVisibility(OdDb::kInvisible);
  EXPECT_EQ(entity->visibility(), OdDb::kInvisible);
  EXPECT_TRUE(database->writeBytes() == before);
  entity->setVisibility(OdDb::kVisible);
  EXPECT_EQ(entity->visibility(), OdDb::kVisible);
}

TEST_F(OpenModes, an_erased_entity_leaves_the_file_and_comes_back_to_its_place) {
  append();
  const std::string before = database->writeBytes();
  const auto entity = odOpen<OdDbLine>(line, OdDb::kForWrite);
  entity->erase();
  const OdDbDatabasePtr without = OdDbDatabase::readBytes(database->writeBytes(), "erased");
  EXPECT_EQ(odOpen<OdDbBlockTableRecord>(without->getModelSpaceId())->entities().size(), 1u);
  entity->erase(false);
  EXPECT_TRUE(database->writeBytes() == before);
}
