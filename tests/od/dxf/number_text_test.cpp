#include "od/dxf/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

namespace {

TEST(NumberText, a_real_always_has_a_point) {
  EXPECT_EQ(dxf::format_double(0), "0.0");
  EXPECT_EQ(dxf::format_double(-3), "-3.0");
  EXPECT_EQ(dxf::format_double(0.1), "0.1");
  EXPECT_EQ(dxf::format_double(1e20), "1.0E+20");
  EXPECT_EQ(dxf::format_double(1.224646799147353e-16), "1.224646799147353E-16");
}

TEST(NumberText, a_real_reads_back_to_the_same_bits) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    const auto back = dxf::parse_double(dxf::format_double(value));
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(std::bit_cast<std::uint64_t>(*back), std::bit_cast<std::uint64_t>(value));
  }
}

TEST(NumberText, reals_are_read_as_many_programs_write_them) {
  EXPECT_EQ(dxf::parse_double("  1.5 "), 1.5);
  EXPECT_EQ(dxf::parse_double("+2"), 2.0);
  EXPECT_EQ(dxf::parse_double(".5"), 0.5);
  EXPECT_EQ(dxf::parse_double("1e+20"), 1e20);
  EXPECT_EQ(dxf::parse_double("-0"), 0.0);
  EXPECT_FALSE(dxf::parse_double(""));
  EXPECT_FALSE(dxf::parse_double("1,5"));
  EXPECT_FALSE(dxf::parse_double("nan"));
  EXPECT_FALSE(dxf::parse_double("inf"));
  EXPECT_FALSE(dxf::parse_double("1e999"));
}

TEST(NumberText, an_integer_may_be_written_as_a_real) {
  EXPECT_EQ(dxf::parse_int("     7"), 7);
  EXPECT_EQ(dxf::parse_int("1.0"), 1);
  EXPECT_EQ(dxf::parse_int("-3.000000"), -3);
  EXPECT_EQ(dxf::parse_int("9223372036854775807"), 9223372036854775807);
  EXPECT_FALSE(dxf::parse_int("1e300"));
  EXPECT_FALSE(dxf::parse_int("x"));
  EXPECT_FALSE(dxf::parse_int(""));
}

TEST(NumberText, a_handle_is_hexadecimal_in_either_case) {
  EXPECT_EQ(dxf::parse_handle("1aF"), 0x1AFu);
  EXPECT_EQ(dxf::parse_handle("FFFFFFFFFFFFFFFF"), 0xFFFFFFFFFFFFFFFFu);
  EXPECT_FALSE(dxf::parse_handle("10000000000000000"));
  EXPECT_FALSE(dxf::parse_handle("-1"));
  EXPECT_FALSE(dxf::parse_handle("+1"));
  EXPECT_FALSE(dxf::parse_handle(""));
  EXPECT_EQ(dxf::format_handle(0), "0");
  EXPECT_EQ(dxf::format_handle(0x1AF), "1AF");
}

TEST(NumberText, binary_data_may_be_in_lower_case_with_blanks_behind) {
  EXPECT_EQ(dxf::parse_hex("0aFf  "), std::string("\x0A\xFF"));
  EXPECT_EQ(dxf::parse_hex(""), std::string());
  EXPECT_FALSE(dxf::parse_hex("0"));
  EXPECT_FALSE(dxf::parse_hex("0G"));
  EXPECT_FALSE(dxf::parse_hex("0 1 "));
  EXPECT_EQ(dxf::format_hex("\x0A\xFF"), "0AFF");
}

}  // namespace
