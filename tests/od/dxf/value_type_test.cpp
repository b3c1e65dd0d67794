#include "od/dxf/value_type.h"

#include <gtest/gtest.h>

namespace {

using dxf::value_type;
using dxf::ValueType;

struct Row {
  int first;
  int last;
  ValueType type;
};

constexpr Row kRows[] = {
    {0, 4, ValueType::string},       {5, 5, ValueType::handle},       {6, 9, ValueType::string},
    {10, 59, ValueType::real},       {60, 79, ValueType::int16},      {90, 99, ValueType::int32},
    {100, 102, ValueType::string},   {105, 105, ValueType::handle},   {110, 149, ValueType::real},
    {160, 169, ValueType::int64},    {170, 179, ValueType::int16},    {210, 239, ValueType::real},
    {270, 289, ValueType::int16},    {290, 299, ValueType::boolean},  {300, 309, ValueType::string},
    {310, 319, ValueType::binary},   {320, 369, ValueType::handle},   {370, 389, ValueType::int16},
    {390, 399, ValueType::handle},   {400, 409, ValueType::int16},    {410, 419, ValueType::string},
    {420, 429, ValueType::int32},    {430, 439, ValueType::string},   {440, 459, ValueType::int32},
    {460, 469, ValueType::real},     {470, 479, ValueType::string},   {480, 481, ValueType::handle},
    {999, 1003, ValueType::string},  {1004, 1004, ValueType::binary}, {1005, 1005, ValueType::handle},
    {1006, 1009, ValueType::string}, {1010, 1059, ValueType::real},   {1060, 1070, ValueType::int16},
    {1071, 1071, ValueType::int32},
};

ValueType expected(int code) {
  for (const Row& row : kRows) {
    if (code >= row.first && code <= row.last) return row.type;
  }
  return ValueType::unknown;
}

TEST(ValueType, every_code_has_the_type_of_its_range) {
  for (int code = -10; code < 1100; ++code) EXPECT_EQ(value_type(code), expected(code)) << code;
}

TEST(ValueType, text_is_what_stands_as_text_in_a_drawing) {
  EXPECT_TRUE(dxf::is_text(value_type(1)));
  EXPECT_TRUE(dxf::is_text(value_type(330)));
  EXPECT_TRUE(dxf::is_text(value_type(500)));
  EXPECT_FALSE(dxf::is_text(value_type(40)));
  EXPECT_FALSE(dxf::is_text(value_type(310)));
}

TEST(ValueType, booleans_are_integers) {
  EXPECT_TRUE(dxf::is_integer(value_type(290)));
  EXPECT_TRUE(dxf::is_integer(value_type(1071)));
  EXPECT_FALSE(dxf::is_integer(value_type(40)));
}

}  // namespace
