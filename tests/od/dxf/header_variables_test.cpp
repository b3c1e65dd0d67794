#include "od/dxf/header_variables.h"

#include <gtest/gtest.h>

#include "drawing_bytes.h"

namespace {

using dxf::File;
using dxf::HeaderVariables;
using dxf::Point;

constexpr const char* kHeader =
    "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$INSBASE\n 10\n1.0\n 20\n2.0\n 30\n3.0\n"
    "  9\n$TEXTSIZE\n 40\n2.5\n  9\n$HANDSEED\n  5\nFF\n  9\n$LUPREC\n 70\n     4\n  0\nENDSEC\n";

TEST(HeaderVariables, values_are_found_by_name) {
  File file = File::read(kHeader + drawing_of(""), "plan.dxf");
  const HeaderVariables header(file);
  EXPECT_EQ(header.string_or("$ACADVER", u""), u"AC1015");
  EXPECT_EQ(header.point_or("$INSBASE", {}), (Point{1, 2, 3}));
  EXPECT_EQ(header.double_or("$TEXTSIZE", 0), 2.5);
  EXPECT_EQ(header.handle_or("$HANDSEED", 0), 0xFFu);
  EXPECT_EQ(header.int_or("$LUPREC", 0), 4);
  EXPECT_EQ(header.int_or("$AUPREC", 3), 3);
  EXPECT_EQ(header.names(),
            (std::vector<std::string>{"$ACADVER", "$INSBASE", "$TEXTSIZE", "$HANDSEED", "$LUPREC"}));
}

TEST(HeaderVariables, setting_one_changes_its_value_alone) {
  File file = File::read(kHeader + drawing_of(""), "plan.dxf");
  HeaderVariables header(file);
  header.set_int("$LUPREC", 70, 2);
  header.set_handle("$HANDSEED", 5, 0x100);
  header.set_point("$INSBASE", 10, {1, 2, 4});
  std::string expected = kHeader + drawing_of("");
  expected.replace(expected.find("     4"), 6, "     2");
  expected.replace(expected.find("FF"), 2, "100");
  expected.replace(expected.find("3.0"), 3, "4.0");
  EXPECT_EQ(file.write(), expected);
}

TEST(HeaderVariables, a_missing_variable_is_added_at_the_end) {
  File file = File::read("0\nSECTION\n2\nHEADER\n9\n$A\n70\n1\n0\nENDSEC\n0\nEOF\n", "plan.dxf");
  HeaderVariables header(file);
  header.set_double("$B", 40, 1.5);
  header.set_string("$C", 1, u"text");
  header.set_point("$D", 10, {1, 2, 3});
  EXPECT_EQ(file.write(),
            "0\nSECTION\n2\nHEADER\n9\n$A\n70\n1\n9\n$B\n40\n1.5\n9\n$C\n1\ntext\n9\n$D\n10\n1.0\n20\n2."
            "0\n30\n3.0\n"
            "0\nENDSEC\n0\nEOF\n");
}

TEST(HeaderVariables, a_missing_section_is_added_behind_the_remarks) {
  File file = File::read("999\nremark\n" + drawing_of(""), "plan.dxf");
  HeaderVariables header(file);
  EXPECT_EQ(header.record(), nullptr);
  EXPECT_EQ(header.int_or("$A", 9), 9);
  header.set_int("$A", 70, 1);
  EXPECT_EQ(file.write(),
            "999\nremark\n  0\nSECTION\n  2\nHEADER\n  9\n$A\n 70\n1\n  0\nENDSEC\n" + drawing_of(""));
}

TEST(HeaderVariables, a_name_without_a_value_gives_the_fallback) {
  File file = File::read("0\nSECTION\n2\nHEADER\n9\n$A\n9\n$B\n70\n1\n0\nENDSEC\n0\nEOF\n", "plan.dxf");
  HeaderVariables header(file);
  EXPECT_EQ(header.int_or("$A", 9), 9);
  header.set_int("$A", 70, 5);
  EXPECT_EQ(header.int_or("$A", 9), 5);
  EXPECT_EQ(header.int_or("$B", 9), 1);
}

}  // namespace
