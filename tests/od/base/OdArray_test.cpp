#include "od/base/OdArray.h"

#include <gtest/gtest.h>

TEST(OdArray, every_access_outside_throws_invalid_index) {
  OdArray<int> numbers{1, 2, 3};

  EXPECT_EQ(numbers[2], 3);
  EXPECT_THROW(numbers[3], OdError_InvalidIndex);
  EXPECT_THROW(numbers.removeAt(3), OdError_InvalidIndex);
  EXPECT_THROW(numbers.insertAt(4, 0), OdError_InvalidIndex);
  EXPECT_THROW(OdArray<int>().last(), OdError_InvalidIndex);
  EXPECT_THROW(OdArray<int>().removeLast(), OdError_InvalidIndex);
}

TEST(OdArray, appends_inserts_and_removes) {
  OdArray<int> numbers{1, 3};

  numbers.insertAt(1, 2);
  numbers.append(4);
  numbers.removeAt(0);

  EXPECT_EQ(numbers, (OdArray<int>{2, 3, 4}));
}
