#include "ui/dialogs/column_values.h"

#include <gtest/gtest.h>

#include "tests/ui/dialogs/three_columns.h"

namespace {

TEST(ColumnValues, more_columns_share_the_total) {
  column_values values = kThreeColumns;
  dialogs::set_count(values, 5);
  EXPECT_EQ(values.column_width, 16);
  EXPECT_EQ(values.gutter, 5);
  EXPECT_EQ(values.total, 100);
}

TEST(ColumnValues, columns_as_narrow_as_the_text_is_high_take_from_the_gutters) {
  column_values values = kThreeColumns;
  dialogs::set_total(values, 13.5);
  EXPECT_EQ(values.column_width, 2.5);
  EXPECT_EQ(values.gutter, 3);
  EXPECT_EQ(values.total, 13.5);
}

TEST(ColumnValues, without_gutters_the_total_grows_to_what_the_columns_need) {
  column_values values = kThreeColumns;
  dialogs::set_total(values, 5);
  EXPECT_EQ(values.column_width, 2.5);
  EXPECT_EQ(values.gutter, 0);
  EXPECT_EQ(values.total, 7.5);
}

TEST(ColumnValues, the_total_follows_column_width_and_gutter) {
  column_values values = kThreeColumns;
  dialogs::set_column_width(values, 40);
  EXPECT_EQ(values.total, 130);
  dialogs::set_gutter(values, 10);
  EXPECT_EQ(values.total, 140);
}

TEST(ColumnValues, beyond_the_limit_the_total_is_no_sum_any_more) {
  column_values values = kThreeColumns;
  dialogs::set_column_width(values, 12000);
  EXPECT_EQ(values.column_width, 25000);
  EXPECT_EQ(values.total, 25000);
  values = kThreeColumns;
  dialogs::set_gutter(values, 24000);
  EXPECT_EQ(values.gutter, 25000);
  EXPECT_EQ(values.total, 25000);
}

TEST(ColumnValues, one_column_is_as_wide_as_the_total) {
  column_values values = kThreeColumns;
  values.count = 1;
  dialogs::set_total(values, 2);
  EXPECT_EQ(values.column_width, 2.5);
  EXPECT_EQ(values.gutter, 0);
  EXPECT_EQ(values.total, 2);
}

TEST(ColumnValues, a_text_without_columns_counts_as_one) {
  column_values values = kThreeColumns;
  values.count = 0;
  dialogs::set_column_width(values, 41);
  EXPECT_EQ(values.total, 41);
  dialogs::set_total(values, 37);
  EXPECT_EQ(values.column_width, 37);
}

}  // namespace
