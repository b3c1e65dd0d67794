#include "host/box_selection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/pickable_entities.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbCircle.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbLine.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A line from (0,0) to (100,100) and a circle of radius 10 around (200,0).
struct BoxSelection : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  OdDbObjectId line, circle;

  BoxSelection() {
    auto diagonal = odNew<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{100, 100, 0});
    line = append(*diagonal);
    auto round = odNew<OdDbCircle>();
    round->setCenter({200, 0, 0});
    round->setRadius(10);
    circle = append(*round);
  }

  OdDbObjectId append(OdDbEntity& entity) {
    entity.setDatabaseDefaults(database.get());
    const auto space = odCast<OdDbBlockTableRecord>(database->getModelSpaceId().openObject(OdDb::kForWrite));
    return space->appendOdDbEntity(&entity);
  }

  /// The layer that both lie on.
  OdDbLayerTableRecordPtr layer() {
    const auto entity = odCast<OdDbEntity>(line.openObject());
    return odCast<OdDbLayerTableRecord>(entity->layerId().openObject(OdDb::kForWrite));
  }

  std::vector<OdDbObjectId> in(const OdGePoint3d& first, const OdGePoint3d& opposite) {
    return host::entities_in(*database, {first, opposite});
  }
};

}  // namespace

TEST_F(BoxSelection, from_left_to_right_it_takes_what_lies_wholly_in_it) {
  EXPECT_THAT(in({-5, -5, 0}, {105, 105, 0}), ElementsAre(line));
  EXPECT_THAT(in({-5, 105, 0}, {105, -5, 0}), ElementsAre(line));
  EXPECT_THAT(in({-5, -5, 0}, {50, 50, 0}), IsEmpty());
}

TEST_F(BoxSelection, from_right_to_left_it_takes_what_it_touches) {
  EXPECT_THAT(in({60, 60, 0}, {40, 40, 0}), ElementsAre(line));
  EXPECT_THAT(in({205, 20, 0}, {195, 5, 0}), ElementsAre(circle));
  EXPECT_THAT(in({300, 200, 0}, {-300, -200, 0}), ElementsAre(line, circle));
}

TEST_F(BoxSelection, a_box_beside_the_lines_takes_nothing) {
  EXPECT_THAT(in({90, 40, 0}, {60, 10, 0}), IsEmpty());
  EXPECT_THAT(in({205, 5, 0}, {195, -5, 0}), IsEmpty());
}

TEST_F(BoxSelection, what_is_on_a_frozen_layer_is_not_taken) {
  layer()->setIsFrozen(true);
  EXPECT_THAT(host::pickable_entities(*database), IsEmpty());
  EXPECT_THAT(host::thawed_entities(*database), IsEmpty());
  EXPECT_THAT(in({300, 200, 0}, {-300, -200, 0}), IsEmpty());
}

TEST_F(BoxSelection, what_is_on_a_layer_that_is_off_is_taken_by_the_word_all_alone) {
  layer()->setIsOff(true);
  EXPECT_THAT(in({300, 200, 0}, {-300, -200, 0}), IsEmpty());
  EXPECT_THAT(host::thawed_entities(*database), ElementsAre(line, circle));
}
