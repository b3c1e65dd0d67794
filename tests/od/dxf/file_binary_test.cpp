#include <gtest/gtest.h>

#include "drawing_bytes.h"
#include "od/dxf/file.h"

namespace {

using dxf::File;

std::string binary_drawing(const std::string& entities) {
  return binary_head() + binary_text(0, "SECTION") + binary_text(2, "ENTITIES") + entities +
         binary_text(0, "ENDSEC") + binary_text(0, "EOF");
}

dxf::Record& entity(File& file) { return *file.records().first()->next(); }

TEST(FileBinary, values_have_the_width_of_their_code) {
  const std::string bytes = binary_drawing(
      binary_text(0, "MTEXT") + binary_text(5, "1F") +
      binary_group(40, std::string("\0\0\0\0\0\0\xF8\x3F", 8)) + binary_group(62, "\xFE\xFF") +
      binary_group(90, std::string("\x04\x03\x02\x01", 4)) +
      binary_group(160, std::string("\x01\0\0\0\0\0\0\x80", 8)) + binary_group(290, "\x01") +
      binary_group(310, std::string("\x03\x0A\0\xFF", 4)) + binary_group(1071, "\xFF\xFF\xFF\xFF"));
  File file = File::read(bytes, "plan.dxf");
  const dxf::Record& record = entity(file);
  EXPECT_EQ(file.form(), dxf::Form::binary);
  EXPECT_FALSE(file.manner().one_byte_codes);
  EXPECT_EQ(record.handle(), 0x1Fu);
  EXPECT_EQ(record.get_double(2), 1.5);
  EXPECT_EQ(record.get_int(3), -2);
  EXPECT_EQ(record.get_int(4), 0x01020304);
  EXPECT_EQ(record.get_int(5), std::int64_t(0x8000000000000001u));
  EXPECT_EQ(record.get_int(6), 1);
  EXPECT_EQ(record.get_binary(7), std::string("\x0A\0\xFF", 3));
  EXPECT_EQ(record.get_int(8), -1);
  EXPECT_EQ(file.write(), bytes);
}

TEST(FileBinary, a_real_that_is_infinite_or_no_number_is_no_value) {
  const std::string bytes =
      binary_drawing(binary_text(0, "CIRCLE") + binary_group(40, std::string("\0\0\0\0\0\0\xF0\x7F", 8)) +
                     binary_group(50, std::string("\0\0\0\0\0\0\xF8\x7F", 8)));
  File file = File::read(bytes, "plan.dxf");
  const dxf::Record& record = entity(file);
  EXPECT_FALSE(record.get_double(1).has_value());
  EXPECT_FALSE(record.get_double(2).has_value());
  EXPECT_EQ(record.double_or(40, record.whole(), 1.0), 1.0);
  EXPECT_EQ(file.write(), bytes);
}

TEST(FileBinary, changed_values_are_written_in_binary) {
  File file = File::read(binary_drawing(binary_text(0, "TEXT") + binary_text(1, "old") +
                                        binary_group(62, std::string("\1\0", 2))),
                         "plan.dxf");
  entity(file).set_string(1, u"a\nb^");
  entity(file).set_int(2, 300);
  entity(file).insert_double(3, 40, 1.5);
  EXPECT_EQ(file.write(), binary_drawing(binary_text(0, "TEXT") + binary_text(1, "a\nb^") +
                                         binary_group(62, std::string("\x2C\x01", 2)) +
                                         binary_group(40, std::string("\0\0\0\0\0\0\xF8\x3F", 8))));
}

TEST(FileBinary, the_length_byte_follows_binary_data) {
  File file = File::read(binary_drawing(binary_text(0, "X") + binary_group(310, std::string("\x01\x0A", 2))),
                         "plan.dxf");
  entity(file).set_binary(1, "abc");
  EXPECT_EQ(file.write(), binary_drawing(binary_text(0, "X") + binary_group(310,
                                                                            "\x03"
                                                                            "abc")));
  EXPECT_THROW(entity(file).set_binary(1, std::string(256, 'x')), OdError);
}

TEST(FileBinary, drawings_up_to_r12_have_codes_of_one_byte) {
  const auto text = [](const std::string& code, const std::string& value) { return code + value + '\0'; };
  const std::string zero(1, '\0');
  const std::string bytes = binary_head() + text(zero, "SECTION") + text("\x02", "ENTITIES") +
                            text(zero, "TEXT") + text("\x01", "hello") + text("\xFF\xE9\x03", "ACAD") +
                            text("\xFF\xE8\x03", "data") + text(zero, "ENDSEC") + text(zero, "EOF");
  File file = File::read(bytes, "plan.dxf");
  EXPECT_TRUE(file.manner().one_byte_codes);
  EXPECT_EQ(entity(file).get_string(1), u"hello");
  EXPECT_TRUE(entity(file).xdata(u"acad").has_value());
  EXPECT_EQ(file.write(), bytes);
  entity(file).insert_string(4, 1000, u"more");
  entity(file).insert_string(2, 7, u"S");
  EXPECT_EQ(file.write(), binary_head() + text(zero, "SECTION") + text("\x02", "ENTITIES") +
                              text(zero, "TEXT") + text("\x01", "hello") + text("\x07", "S") +
                              text("\xFF\xE9\x03", "ACAD") + text("\xFF\xE8\x03", "data") +
                              text("\xFF\xE8\x03", "more") + text(zero, "ENDSEC") + text(zero, "EOF"));
}

TEST(FileBinary, the_end_mark_may_be_missing_between_sections) {
  const std::string bytes =
      binary_head() + binary_text(0, "SECTION") + binary_text(2, "ENTITIES") + binary_text(0, "ENDSEC");
  EXPECT_EQ(File::read(bytes, "plan.dxf").write(), bytes);
}

TEST(FileBinary, strings_are_utf8_from_r2007_on) {
  const std::string header = binary_text(0, "SECTION") + binary_text(2, "HEADER") +
                             binary_text(9, "$ACADVER") + binary_text(1, "AC1032") + binary_text(0, "ENDSEC");
  const std::string bytes = binary_head() + header + binary_text(0, "SECTION") + binary_text(2, "ENTITIES") +
                            binary_text(0, "TEXT") + binary_text(1, "\xC3\xBC") + binary_text(0, "ENDSEC") +
                            binary_text(0, "EOF");
  const File file = File::read(bytes, "plan.dxf");
  EXPECT_EQ(file.section("ENTITIES")->begin->next()->get_string(1), u"ü");
}

}  // namespace
