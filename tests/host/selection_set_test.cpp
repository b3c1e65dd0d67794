#include "host/selection_set.h"

#include <gtest/gtest.h>

#include "host/windowless/application.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbLine.h"

namespace {

class SelectionSet : public testing::Test {
 protected:
  OdDbObjectId line() {
    const auto space = odCast<OdDbBlockTableRecord>(database->getActiveSpaceId().openObject(OdDb::kForWrite));
    return space->appendOdDbEntity(odNew<OdDbLine>().get());
  }

  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  HostSelectionSet set;
};

TEST_F(SelectionSet, entities_keep_the_order_in_which_they_came_and_are_in_once) {
  const OdDbObjectId first = line(), second = line();
  set.add(second);
  set.add(first);
  set.add(second);
  EXPECT_EQ(set.ids(), (std::vector{second, first}));
  EXPECT_TRUE(set.contains(first));
}

TEST_F(SelectionSet, what_is_removed_is_out_and_can_come_again_at_the_end) {
  const OdDbObjectId first = line(), second = line();
  set.add(first);
  set.add(second);
  set.remove(first);
  EXPECT_FALSE(set.contains(first));
  set.add(first);
  EXPECT_EQ(set.ids(), (std::vector{second, first}));
}

TEST_F(SelectionSet, a_press_is_remembered_and_forgotten_with_the_rest) {
  set.add(line(), {1, 2, 0});
  EXPECT_EQ(set.pressed(), (OdGePoint3d{1, 2, 0}));
  set.clear();
  EXPECT_TRUE(set.isEmpty());
  EXPECT_FALSE(set.pressed());
}

}  // namespace
