#include <gtest/gtest.h>

#include <limits>

#include "drawing_bytes.h"
#include "od/dxf/file.h"

namespace {

using dxf::File;
using dxf::Record;

constexpr const char* kGroups =
    "  0\nX\n 40\n2.50\n 70\n     1\n 90\n        4\n  1\nhello\n330\n1f\n310\n0aff\n 71\n3\n 72\n1.0\n";

class RecordValues : public ::testing::Test {
 protected:
  File file = File::read(drawing_of(kGroups), "plan.dxf");
  Record& record = *file.records().first()->next();

  // The drawing with `from`, which stands in it once, replaced.
  static std::string replaced(const std::string& from, const std::string& to) {
    std::string bytes = drawing_of(kGroups);
    return bytes.replace(bytes.find(from), from.size(), to);
  }
};

TEST_F(RecordValues, values_are_read_by_their_type) {
  EXPECT_EQ(record.get_double(1), 2.5);
  EXPECT_EQ(record.get_int(2), 1);
  EXPECT_EQ(record.get_int(3), 4);
  EXPECT_EQ(record.get_string(4), u"hello");
  EXPECT_EQ(record.get_handle(5), 0x1Fu);
  EXPECT_EQ(record.get_binary(6), "\x0A\xFF");
  EXPECT_EQ(record.get_int(8), 1);
}

TEST_F(RecordValues, what_cannot_be_read_gives_nothing) {
  EXPECT_FALSE(record.get_double(4).has_value());
  EXPECT_FALSE(record.get_int(4).has_value());
  EXPECT_FALSE(record.get_binary(4).has_value());
  EXPECT_EQ(record.get_handle(4), 0u);
  EXPECT_EQ(record.double_or(1, record.whole(), 9), 9);
  EXPECT_EQ(record.int_or(41, record.whole(), 9), 9);
  EXPECT_EQ(record.string_or(3, record.whole(), u"none"), u"none");
}

TEST_F(RecordValues, setting_what_stands_there_changes_nothing) {
  record.set_double(1, 2.5);
  record.set_int(2, 1);
  record.set_int(3, 4);
  record.set_string(4, u"hello");
  record.set_handle_value(5, 0x1F);
  record.set_binary(6, "\x0A\xFF");
  record.set_int(8, 1);
  EXPECT_FALSE(record.changed());
  EXPECT_EQ(file.write(), drawing_of(kGroups));
}

TEST_F(RecordValues, a_real_is_written_in_its_shortest_form) {
  record.set_double(1, 1.0 / 3);
  EXPECT_TRUE(record.changed());
  EXPECT_TRUE(record[1].changed());
  EXPECT_FALSE(record[2].changed());
  EXPECT_EQ(file.write(), replaced("2.50", "0.3333333333333333"));
}

TEST_F(RecordValues, an_integer_keeps_its_columns) {
  record.set_int(2, -12);
  EXPECT_EQ(file.write(), replaced("\n     1\n", "\n   -12\n"));
}

TEST_F(RecordValues, an_integer_that_was_not_aligned_stays_so) {
  record.set_int(7, 12);
  EXPECT_EQ(file.write(), replaced("\n 71\n3\n", "\n 71\n12\n"));
}

TEST_F(RecordValues, an_integer_that_was_written_as_a_real_becomes_one) {
  record.set_int(8, 2);
  EXPECT_EQ(file.write(), replaced("1.0\n", "2\n"));
}

TEST_F(RecordValues, new_integers_are_aligned_as_in_the_rest_of_the_file) {
  record.insert_int(9, 73, 5);
  record.insert_int(10, 91, 6);
  EXPECT_EQ(file.write(), replaced(" 72\n1.0\n", " 72\n1.0\n 73\n     5\n 91\n        6\n"));
}

TEST_F(RecordValues, handles_and_binary_data_are_written_in_upper_case) {
  record.set_handle_value(5, 0xAB);
  record.set_binary(6, "\xCD");
  EXPECT_EQ(file.write(), replaced("1f\n310\n0aff", "AB\n310\nCD"));
}

TEST_F(RecordValues, groups_are_inserted_and_erased_in_place) {
  record.insert_string(1, 8, u"walls");
  record.insert_handle(2, 340, 0x2A);
  record.insert_binary(3, 310, "\x01");
  record.erase(4);
  EXPECT_EQ(file.write(), replaced(" 40\n2.50\n", "  8\nwalls\n340\n2A\n310\n01\n"));
  record.erase(dxf::Range{1, record.size()});
  EXPECT_EQ(file.write(), drawing_of("  0\nX\n"));
}

TEST_F(RecordValues, an_erased_range_that_is_empty_changes_nothing) {
  record.erase(dxf::Range{3, 3});
  EXPECT_FALSE(record.changed());
}

TEST_F(RecordValues, a_value_that_the_code_cannot_hold_is_refused) {
  EXPECT_THROW(record.set_double(1, std::numeric_limits<double>::infinity()), OdError);
  EXPECT_THROW(record.set_double(1, std::numeric_limits<double>::quiet_NaN()), OdError);
  EXPECT_THROW(record.set_int(2, 70000), OdError);
  EXPECT_THROW(record.set_int(2, -40000), OdError);
  EXPECT_THROW(record.set_string(1, u"x"), OdError);
  EXPECT_THROW(record.set_double(2, 1), OdError);
  EXPECT_THROW(record.set_handle_value(2, 1), OdError);
  EXPECT_THROW(record.set_binary(4, "x"), OdError);
  EXPECT_THROW(record.insert_double(1, 70, 1), OdError);
  EXPECT_THROW(record.insert_int(1, 1, 1), OdError);
  EXPECT_FALSE(record.changed());
}

TEST_F(RecordValues, an_unsigned_number_of_the_same_width_is_taken) {
  record.set_int(3, 0xC2000001);
  EXPECT_EQ(record.get_int(3), -1040187391);
  record.set_int(3, 0xC2000001);
  EXPECT_EQ(file.write(), replaced("        4", "-1040187391"));
}

TEST_F(RecordValues, an_integer_may_be_set_where_a_real_stands) {
  record.set_int(1, 3);
  EXPECT_EQ(record.get_double(1), 3.0);
  EXPECT_EQ(file.write(), replaced("2.50", "3.0"));
}

TEST(RecordManner, codes_stand_in_the_columns_of_the_file) {
  File narrow = File::read("0\nSECTION\n2\nENTITIES\n0\nX\n0\nENDSEC\n0\nEOF\n", "plan.dxf");
  Record& record = *narrow.records().first()->next();
  record.insert_string(1, 8, u"walls");
  record.insert_int(2, 70, 1);
  EXPECT_EQ(narrow.write(), "0\nSECTION\n2\nENTITIES\n0\nX\n8\nwalls\n70\n1\n0\nENDSEC\n0\nEOF\n");
}

TEST(RecordManner, a_copy_of_a_record_gives_the_same_bytes) {
  File file = File::read(drawing_of(kGroups), "plan.dxf");
  Record& record = *file.records().first()->next();
  file.records().insert_before(record.next(), std::make_unique<Record>(record));
  EXPECT_EQ(file.write(), drawing_of(std::string(kGroups) + kGroups));
}

TEST(RecordManner, a_group_may_be_copied_into_another_record) {
  File file = File::read(drawing_of("  0\nA\n  8\nwalls\n  0\nB\n"), "plan.dxf");
  Record& a = *file.records().first()->next();
  a.next()->insert(1, a[1]);
  EXPECT_EQ(file.write(), drawing_of("  0\nA\n  8\nwalls\n  0\nB\n  8\nwalls\n"));
}

}  // namespace
