#include <gtest/gtest.h>

#include "drawing_bytes.h"
#include "od/dxf/file.h"

namespace {

using dxf::File;
using dxf::Record;

constexpr const char* kText =
    "  0\nTEXT\n  "
    "5\n2A\n102\n{ACAD_REACTORS\n330\nAA\n102\n}\n102\n{ACAD_XDICTIONARY\n360\nBB\n102\n}\n330\n1F\n"
    "100\nAcDbEntity\n  8\nwalls\n100\nAcDbText\n 40\n2.5\n  1\nhello\n100\nAcDbText\n 73\n     2\n"
    "1001\nACAD\n1000\nmine\n1001\nOther\n1070\n     7\n";

class RecordRanges : public ::testing::Test {
 protected:
  File file = File::read(drawing_of(kText), "plan.dxf");
  Record& text = *file.records().first()->next();
};

TEST_F(RecordRanges, a_record_runs_from_one_group_0_to_the_next) {
  EXPECT_EQ(text.type(), "TEXT");
  EXPECT_TRUE(text.is("TEXT"));
  EXPECT_EQ(text.size(), 20u);
  EXPECT_EQ(text.next()->type(), "ENDSEC");
  EXPECT_EQ(text.previous()->type(), "SECTION");
}

TEST_F(RecordRanges, the_owner_is_no_reactor) {
  EXPECT_EQ(text.handle(), 0x2Au);
  EXPECT_EQ(text.owner(), 0x1Fu);
}

TEST_F(RecordRanges, application_groups_are_found_by_name) {
  const auto reactors = text.application_group("ACAD_REACTORS");
  const auto dictionary = text.application_group("ACAD_XDICTIONARY");
  ASSERT_TRUE(reactors && dictionary);
  EXPECT_EQ(text.handle_or(330, *reactors, 0), 0xAAu);
  EXPECT_EQ(text.handle_or(360, *dictionary, 0), 0xBBu);
  EXPECT_FALSE(text.application_group("ACAD").has_value());
}

TEST_F(RecordRanges, equal_markers_are_counted) {
  const auto first = text.subclass("AcDbText");
  const auto second = text.subclass("AcDbText", 1);
  ASSERT_TRUE(first && second);
  EXPECT_EQ(text.double_or(40, *first, 0), 2.5);
  EXPECT_FALSE(text.find(73, *first).has_value());
  EXPECT_EQ(text.int_or(73, *second, 0), 2);
  EXPECT_FALSE(text.subclass("AcDbText", 2).has_value());
  EXPECT_FALSE(text.subclass("AcDbLine").has_value());
}

TEST_F(RecordRanges, extended_data_are_found_by_application_without_regard_to_case) {
  const auto own = text.xdata(u"acad");
  const auto other = text.xdata(u"Other");
  ASSERT_TRUE(own && other);
  EXPECT_EQ(text.string_or(1000, *own, u""), u"mine");
  EXPECT_FALSE(text.find(1070, *own).has_value());
  EXPECT_EQ(text.int_or(1070, *other, 0), 7);
  EXPECT_FALSE(text.xdata(u"Third").has_value());
  EXPECT_EQ(text[text.xdata_begin()].code(), 1001);
}

TEST(Record, an_embedded_object_ends_the_subclass) {
  const File file =
      File::read(drawing_of("  0\nMTEXT\n100\nAcDbMText\n 71\n     1\n101\nEmbedded Object\n 71\n"
                            "     2\n1001\nACAD\n1070\n     3\n"),
                 "plan.dxf");
  const Record& mtext = *file.records().first()->next();
  EXPECT_EQ(mtext.find_all(71, *mtext.subclass("AcDbMText")).size(), 1u);
  ASSERT_TRUE(mtext.embedded_object().has_value());
  EXPECT_EQ(mtext.int_or(71, *mtext.embedded_object(), 0), 2);
  EXPECT_FALSE(mtext.find(1070, *mtext.embedded_object()).has_value());
  EXPECT_FALSE(mtext.find(71, *mtext.xdata(u"ACAD")).has_value());
}

TEST(Record, without_markers_a_subclass_is_the_whole_body) {
  const File file = File::read(drawing_of("  0\nTEXT\n  8\n0\n 40\n2.0\n1001\nACAD\n"), "plan.dxf");
  const Record& text = *file.records().first()->next();
  ASSERT_TRUE(text.subclass("AcDbText").has_value());
  EXPECT_EQ(text.double_or(40, *text.subclass("AcDbText"), 0), 2.0);
  EXPECT_EQ(text.subclass("AcDbText")->end, 3u);
  EXPECT_FALSE(text.embedded_object().has_value());
}

TEST(Record, in_an_extension_record_102_is_data) {
  const File file = File::read(
      drawing_of("  0\nXRECORD\n100\nAcDbXrecord\n102\n{A\n 40\n1.0\n102\n}\n102\nB\n"), "plan.dxf");
  const Record& record = *file.records().first()->next();
  EXPECT_EQ(record.double_or(40, *record.subclass("AcDbXrecord"), 0), 1.0);
}

TEST(Record, an_application_group_may_close_with_its_name_or_not_at_all) {
  const File file =
      File::read(drawing_of("  0\nX\n102\n{A\n330\n1\n102\nA}\n102\n{OPEN\n330\n2\n"), "plan.dxf");
  const Record& record = *file.records().first()->next();
  EXPECT_EQ(record.handle_or(330, *record.application_group("A"), 0), 1u);
  EXPECT_FALSE(record.application_group("OPEN").has_value());
  EXPECT_EQ(record.owner(), 2u);
}

TEST(Record, the_handle_of_a_dimension_style_is_105) {
  const File file = File::read(
      drawing_of("  0\nDIMSTYLE\n105\n27\n100\nAcDbX\n  5\n_DOT\n  0\nDIMSTYLE\n  5\nBAD\n"), "plan.dxf");
  const Record& style = *file.records().first()->next();
  EXPECT_EQ(style.handle(), 0x27u);
  EXPECT_EQ(style.next()->handle(), 0u);
}

TEST(Record, the_handle_seed_of_a_header_is_no_handle) {
  const File file = File::read("0\nSECTION\n2\nHEADER\n9\n$HANDSEED\n5\nFF\n0\nENDSEC\n0\nEOF\n", "plan.dxf");
  EXPECT_EQ(file.records().first()->handle(), 0u);
}

TEST(Record, handle_and_owner_get_their_usual_places) {
  File file = File::read(drawing_of("  0\nLINE\n100\nAcDbEntity\n  8\n0\n"), "plan.dxf");
  Record& line = *file.records().first()->next();
  line.set_handle(0x1A);
  line.set_owner(0x1F);
  EXPECT_EQ(file.write(), drawing_of("  0\nLINE\n  5\n1A\n330\n1F\n100\nAcDbEntity\n  8\n0\n"));
  line.set_handle(0x1B);
  line.set_owner(0x2F);
  EXPECT_EQ(file.write(), drawing_of("  0\nLINE\n  5\n1B\n330\n2F\n100\nAcDbEntity\n  8\n0\n"));
}

}  // namespace
