#include <gtest/gtest.h>

#include "od/base/OdError.h"
#include "od/db/OdDbMemoryDwgFiler.h"
#include "od/db/OdDbMemoryDxfFiler.h"

TEST(MemoryDxfFiler, gives_back_the_groups_that_were_written) {
  OdDbMemoryDxfFiler filer;
  filer.wrSubclassMarker(u"Sample");
  filer.wrString(71, u"text");
  filer.wrDouble(74, 2.5);
  EXPECT_FALSE(filer.atSubclassData(u"Other"));
  EXPECT_TRUE(filer.atSubclassData(u"Sample"));
  EXPECT_EQ(filer.nextItem(), 71);
  EXPECT_EQ(filer.rdString(), OdString(u"text"));
  EXPECT_EQ(filer.nextItem(), 74);
  EXPECT_EQ(filer.rdDouble(), 2.5);
  EXPECT_TRUE(filer.atEndOfObject());
  EXPECT_THROW(filer.nextItem(), OdError);
  EXPECT_THROW(filer.rdString(), OdError);
  filer.rewind();
  EXPECT_TRUE(filer.atSubclassData(u"Sample"));
}

TEST(MemoryDwgFiler, gives_back_the_values_in_order) {
  OdDbMemoryDwgFiler filer;
  filer.wrString(u"text");
  filer.wrDouble(2.5);
  filer.wrInt32(7);
  filer.wrBool(true);
  EXPECT_EQ(filer.rdString(), OdString(u"text"));
  EXPECT_EQ(filer.rdDouble(), 2.5);
  EXPECT_EQ(filer.rdInt32(), 7);
  EXPECT_TRUE(filer.rdBool());
  EXPECT_THROW(filer.rdBool(), OdError);
  filer.rewind();
  EXPECT_THROW(filer.rdInt32(), OdError);
}
