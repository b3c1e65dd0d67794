#include <gtest/gtest.h>

#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbText.h"
#include "od/db/OdDbUnknownEntity.h"
#include "od/db/OdGiContextForDbDatabase.h"
#include "od/dxf/error.h"
#include "od/gi/OdGiRecorder.h"

namespace {

/// "0 LINE 8 0" becomes lines of codes and values; values hold no blanks.
std::string drawing(const std::string& groups) {
  std::string lines = groups + " 0 EOF";
  for (char& c : lines) {
    if (c == ' ') c = '\n';
  }
  return lines + "\n";
}

OdDbDatabasePtr read(const std::string& groups) { return OdDbDatabase::readBytes(drawing(groups), "test"); }

std::vector<OdDbObjectId> modelOf(OdDbDatabase& database) {
  return odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities();
}

std::string block(const std::string& name, const std::string& entities) {
  return " 0 BLOCK 8 0 2 " + name + " 70 0 10 0.0 20 0.0" + entities + " 0 ENDBLK 8 0";
}

std::string insert(const std::string& name) { return " 0 INSERT 8 0 2 " + name + " 10 1.0 20 0.0"; }

const std::string kLine = " 0 LINE 8 0 10 0.0 20 0.0 11 1.0 21 0.0";

}  // namespace

TEST(DrawingDefects, a_drawing_of_entities_alone_has_layer_style_and_spaces) {
  const OdDbDatabasePtr database =
      read("0 SECTION 2 ENTITIES" + kLine + " 0 TEXT 8 walls 10 1.0 20 1.0 40 2.5 1 hi 0 ENDSEC");
  ASSERT_EQ(modelOf(*database).size(), 2u);
  const auto text = odOpen<OdDbText>(modelOf(*database)[1]);
  EXPECT_EQ(text->layer(), OdString(u"walls"));
  EXPECT_TRUE(text->layerId().isNull());
  EXPECT_TRUE(odOpen<OdDbLayerTableRecord>(odOpen<OdDbLine>(modelOf(*database)[0])->layerId()));
  EXPECT_FALSE(text->textStyle().isNull());
  EXPECT_EQ(text->ownerId(), database->getModelSpaceId());
  EXPECT_NE(text->handle(), odOpen<OdDbLine>(modelOf(*database)[0])->handle());
}

TEST(DrawingDefects, of_two_objects_with_one_handle_the_first_keeps_it) {
  const std::string bytes =
      drawing("0 SECTION 2 ENTITIES 0 LINE 5 2A 8 0 10 1.0 0 LINE 5 2A 8 0 10 2.0 0 ENDSEC");
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(bytes, "twins");
  const auto ids = modelOf(*database);
  ASSERT_EQ(ids.size(), 2u);
  EXPECT_EQ(ids[0].handle(), OdDbHandle(0x2A));
  EXPECT_NE(ids[1].handle(), OdDbHandle(0x2A));
  EXPECT_EQ(database->getOdDbObjectId(ids[1].handle()), ids[1]);
  EXPECT_EQ(database->writeBytes(), bytes);
}

TEST(DrawingDefects, an_entity_of_an_unknown_kind_keeps_all_its_groups) {
  const std::string bytes = drawing("0 SECTION 2 ENTITIES 0 WIDGET 8 glass 71 3 10 1.5 0 ENDSEC");
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(bytes, "unknown");
  const auto widget = odOpen<OdDbUnknownEntity>(modelOf(*database)[0], OdDb::kForWrite);
  ASSERT_TRUE(widget);
  EXPECT_EQ(widget->originalDxfName(), OdString(u"WIDGET"));
  EXPECT_EQ(widget->layer(), OdString(u"glass"));
  widget->setLayer(u"stone");
  EXPECT_EQ(database->writeBytes(), drawing("0 SECTION 2 ENTITIES 0 WIDGET 8 stone 71 3 10 1.5 0 ENDSEC"));
}

TEST(DrawingDefects, layer_and_colour_behind_the_wrong_marker_are_found) {
  const OdDbDatabasePtr database =
      read("0 SECTION 2 ENTITIES 0 LINE 100 AcDbEntity 100 AcDbLine 8 walls 62 5 10 1.0 0 ENDSEC");
  const auto line = odOpen<OdDbLine>(modelOf(*database)[0], OdDb::kForWrite);
  EXPECT_EQ(line->layer(), OdString(u"walls"));
  EXPECT_EQ(line->colorIndex(), 5);
  line->setLayer(u"roof");
  EXPECT_EQ(database->writeBytes(),
            drawing("0 SECTION 2 ENTITIES 0 LINE 100 AcDbEntity 100 AcDbLine 8 roof 62 5 10 1.0 0 ENDSEC"));
}

TEST(DrawingDefects, a_block_that_leads_to_itself_is_reported_once_and_the_rest_is_drawn) {
  const OdDbDatabasePtr database =
      read("0 SECTION 2 BLOCKS" + block("A", kLine + insert("B")) + block("B", kLine + insert("A")) +
           " 0 ENDSEC 0 SECTION 2 ENTITIES" + insert("A") + insert("A") + " 0 ENDSEC");
  const OdGiContextForDbDatabase context(database.get());
  OdGiRecorder recorder;
  OdGiWorldDraw draw(recorder, context);
  for (const OdDbObjectId& id : modelOf(*database)) draw.draw(*odOpen<OdDbEntity>(id));
  EXPECT_EQ(recorder.count(OdGiPrimitive::kPolyline), 4);
  ASSERT_EQ(context.diagnostics().size(), 1u);
  EXPECT_EQ(context.diagnostics()[0], OdString(u"Block A refers to itself"));
}

TEST(DrawingDefects, blocks_nest_twenty_thousand_deep) {
  constexpr int kDepth = 20'000;
  std::string blocks = block("B0", kLine);
  for (int i = 1; i < kDepth; ++i)
    blocks += block("B" + std::to_string(i), insert("B" + std::to_string(i - 1)));
  const OdDbDatabasePtr database = read("0 SECTION 2 BLOCKS" + blocks + " 0 ENDSEC 0 SECTION 2 ENTITIES" +
                                        insert("B" + std::to_string(kDepth - 1)) + " 0 ENDSEC");
  const OdGiContextForDbDatabase context(database.get());
  OdGiRecorder recorder;
  recorder.record(*odOpen<OdDbEntity>(modelOf(*database)[0]), context);
  ASSERT_EQ(recorder.count(OdGiPrimitive::kPolyline), 1);
  EXPECT_EQ(recorder.primitives()[0].contours[0][0].x, kDepth);
}

TEST(DrawingDefects, ten_blocks_of_ten_inserts_each_are_drawn_up_to_a_bound_and_told_of) {
  std::string blocks = block("B0", kLine);
  for (int i = 1; i <= 10; ++i) {
    std::string inserts;
    for (int k = 0; k < 10; ++k) inserts += insert("B" + std::to_string(i - 1));
    blocks += block("B" + std::to_string(i), inserts);
  }
  const OdDbDatabasePtr database =
      read("0 SECTION 2 BLOCKS" + blocks + " 0 ENDSEC 0 SECTION 2 ENTITIES" + insert("B10") + " 0 ENDSEC");
  const OdGiContextForDbDatabase context(database.get());
  OdGiRecorder recorder;
  OdGiWorldDraw draw(recorder, context);
  draw.draw(*odOpen<OdDbEntity>(modelOf(*database)[0]));
  EXPECT_GT(recorder.primitives().size(), 100'000u);
  EXPECT_TRUE(recorder.getModelToWorldTransform().isEqualTo(OdGeMatrix3d()));
  ASSERT_EQ(context.diagnostics().size(), 1u);
  EXPECT_EQ(context.diagnostics()[0], OdString(u"Block B10 holds too much to be drawn whole"));
}

TEST(DrawingDefects, an_array_of_more_cells_than_can_be_counted_is_drawn_up_to_a_bound) {
  const OdDbDatabasePtr database = read("0 SECTION 2 BLOCKS" + block("A", "") +
                                        " 0 ENDSEC 0 SECTION 2 ENTITIES 0 INSERT 2 A 10 0.0 20 0.0"
                                        " 70 2000000000 71 2000000000 44 1.0 45 1.0 0 ENDSEC");
  const OdGiContextForDbDatabase context(database.get());
  OdGiRecorder recorder;
  OdGiWorldDraw draw(recorder, context);
  draw.draw(*odOpen<OdDbEntity>(modelOf(*database)[0]));
  ASSERT_EQ(context.diagnostics().size(), 1u);
  EXPECT_EQ(context.diagnostics()[0], OdString(u"Block A holds too much to be drawn whole"));
}

TEST(DrawingDefects, what_is_no_drawing_is_refused_in_one_sentence) {
  try {
    OdDbDatabase::readBytes("Dear Sir,\nplease find enclosed\n", "letter.dxf");
    FAIL() << "a letter was read as a drawing";
  } catch (const dxf::Error& error) {
    EXPECT_NE(std::string(error.what()).find("letter.dxf"), std::string::npos);
  }
  EXPECT_THROW(OdDbDatabase::readFile("/nowhere/at/all.dxf"), OdError);
}
