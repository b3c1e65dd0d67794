#include <gtest/gtest.h>

#include "drawing_bytes.h"
#include "od/dxf/file.h"

namespace {

std::string message_of(const std::string& bytes) {
  try {
    dxf::File::read(bytes, "plan.dxf");
  } catch (const dxf::Error& error) {
    return error.what();
  }
  return "no error";
}

TEST(FileError, a_text_that_is_no_drawing_is_refused_with_its_line) {
  EXPECT_EQ(message_of("Dear reader,\nthis is a letter.\n"),
            "plan.dxf, line 1: \"Dear reader,\" is not a group code.");
}

TEST(FileError, numbers_alone_are_no_drawing) {
  EXPECT_EQ(message_of("1\n2\n3\n4\n"), "plan.dxf, line 1: a drawing has to begin with the group 0 SECTION.");
  EXPECT_EQ(message_of("999\nremark\n0\nLINE\n"),
            "plan.dxf, line 3: a drawing has to begin with the group 0 SECTION.");
}

TEST(FileError, a_bad_code_names_its_line_and_does_not_upset_the_terminal) {
  EXPECT_EQ(message_of("0\nSECTION\n2\nENTITIES\n\x1B[2J\nvalue\n"),
            "plan.dxf, line 5: \"?[2J\" is not a group code.");
  EXPECT_EQ(message_of("0\nSECTION\n99999\nvalue\n"), "plan.dxf, line 3: \"99999\" is not a group code.");
  EXPECT_EQ(message_of("0\nSECTION\n\nvalue\n"), "plan.dxf, line 3: \"\" is not a group code.");
}

TEST(FileError, a_group_without_a_value_is_refused) {
  EXPECT_EQ(message_of("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\n"),
            "plan.dxf, line 7: the drawing ends in the middle of a group.");
  EXPECT_EQ(message_of("0\nSECTION\n2\nENTITIES\n0"),
            "plan.dxf, line 5: the drawing ends in the middle of a group.");
}

TEST(FileError, a_mark_that_is_cut_short_is_refused) {
  const std::string section = "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n";
  EXPECT_EQ(message_of(section + "0\nEO"), "plan.dxf, line 7: the drawing ends in the middle of a group.");
  EXPECT_EQ(message_of(section + "0\nSECT"), "plan.dxf, line 7: the drawing ends in the middle of a group.");
  EXPECT_EQ(message_of("0\nSECTION\n2\nENTITIES\n0\nENDSE"),
            "plan.dxf, line 5: the drawing ends in the middle of the section ENTITIES.");
  EXPECT_EQ(message_of("0\nSECTION\n2\nENTITIES\n0\nENDSEC"), "no error");
}

TEST(FileError, an_end_within_a_section_is_refused) {
  EXPECT_EQ(message_of("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n"),
            "plan.dxf, line 7: the drawing ends in the middle of the section ENTITIES.");
  EXPECT_EQ(message_of("0\nSECTION\n"), "plan.dxf, line 1: the drawing ends in the middle of a section.");
}

TEST(FileError, an_empty_file_is_refused) {
  EXPECT_EQ(message_of(""), "plan.dxf: the file is empty.");
  EXPECT_EQ(message_of("\n\n \n"), "plan.dxf: the file holds no drawing.");
  EXPECT_EQ(message_of("\xEF\xBB\xBF"), "plan.dxf: the file holds no drawing.");
}

TEST(FileError, a_binary_drawing_names_the_byte) {
  const std::string start = binary_head() + binary_text(0, "SECTION") + binary_text(2, "ENTITIES");
  EXPECT_EQ(message_of(start + binary_group(40, "1234")),
            "plan.dxf, byte 43: the drawing ends in the middle of a group.");
  EXPECT_EQ(message_of(start + binary_group(1, "no zero")),
            "plan.dxf, byte 43: the drawing ends in the middle of a group.");
  EXPECT_EQ(message_of(start + binary_group(310,
                                            "\x09"
                                            "short")),
            "plan.dxf, byte 43: the drawing ends in the middle of a group.");
  EXPECT_EQ(message_of(start + "\x01"), "plan.dxf, byte 43: the drawing ends in the middle of a group.");
  EXPECT_EQ(message_of(start), "plan.dxf, byte 32: the drawing ends in the middle of the section ENTITIES.");
  EXPECT_EQ(message_of(start + binary_group(85, "12")),
            "plan.dxf, byte 43: the length of a group 85 is not known.");
}

TEST(FileError, a_damaged_head_of_a_binary_drawing_is_refused) {
  EXPECT_EQ(message_of("AutoCAD Binary DXF\n\x1A"),
            "plan.dxf, byte 18: the head of the binary drawing is damaged.");
  EXPECT_EQ(message_of(binary_head()), "plan.dxf: the file holds no drawing.");
}

TEST(FileError, the_error_knows_its_line) {
  try {
    dxf::File::read("0\nSECTION\nx\ny\n", "plan.dxf");
    FAIL() << "the drawing was read";
  } catch (const dxf::Error& error) {
    EXPECT_EQ(error.line(), 3u);
    EXPECT_EQ(error.code(), eInvalidFile);
  }
}

}  // namespace
