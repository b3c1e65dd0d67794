#include <gtest/gtest.h>

#include "drawing_bytes.h"
#include "od/dxf/file.h"

namespace {

using dxf::File;

std::string rewritten(const std::string& bytes) { return File::read(bytes, "plan.dxf").write(); }

// The second record of the drawing.
dxf::Record& entity(File& file) { return *file.records().first()->next(); }

TEST(FileAscii, a_drawing_may_be_its_entities_alone) {
  const File file = File::read(drawing_of("  0\nLINE\n  8\n0\n"), "plan.dxf");
  EXPECT_EQ(file.version(), dxf::R12);
  EXPECT_EQ(file.form(), dxf::Form::ascii);
  EXPECT_EQ(file.records().size(), 4u);
  EXPECT_EQ(file.write(), drawing_of("  0\nLINE\n  8\n0\n"));
}

TEST(FileAscii, both_line_ends_are_kept) {
  for (const std::string_view end : {"\n", "\r\n"}) {
    const std::string bytes = lines({"0", "SECTION", "2", "ENTITIES", "0", "ENDSEC", "0", "EOF"}, end);
    const File file = File::read(bytes, "plan.dxf");
    EXPECT_EQ(file.manner().line_end, end);
    EXPECT_EQ(file.write(), bytes);
  }
}

TEST(FileAscii, new_groups_end_their_lines_as_the_file_does) {
  File file =
      File::read(lines({"0", "SECTION", "2", "ENTITIES", "0", "ENDSEC", "0", "EOF"}, "\r\n"), "plan.dxf");
  file.records().first()->insert_string(2, 999, u"new");
  EXPECT_EQ(file.write(),
            lines({"0", "SECTION", "2", "ENTITIES", "999", "new", "0", "ENDSEC", "0", "EOF"}, "\r\n"));
}

TEST(FileAscii, the_last_line_may_lack_its_end) {
  const std::string bytes = "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF";
  EXPECT_EQ(rewritten(bytes), bytes);
  EXPECT_EQ(rewritten(bytes + "\r"), bytes + "\r");
}

TEST(FileAscii, a_last_line_without_an_end_gets_one_when_something_follows) {
  File file = File::read("0\nSECTION\n2\nENTITIES\n0\nENDSEC", "plan.dxf");
  file.insert_before(nullptr, "EOF");
  EXPECT_EQ(file.write(), "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
}

TEST(FileAscii, what_stands_behind_the_end_mark_is_kept) {
  const std::string bytes = drawing_of("") + "\x1A\n\nleft over\n";
  const File file = File::read(bytes, "plan.dxf");
  EXPECT_EQ(file.records().size(), 3u);
  EXPECT_EQ(file.write(), bytes);
}

TEST(FileAscii, the_end_mark_may_be_missing) {
  const std::string bytes = "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n";
  EXPECT_EQ(rewritten(bytes), bytes);
  EXPECT_EQ(rewritten(bytes + "\x1A"), bytes + "\x1A");
  EXPECT_EQ(rewritten(bytes + "\n\n"), bytes + "\n\n");
}

TEST(FileAscii, a_byte_order_mark_is_kept) {
  const std::string bytes = "\xEF\xBB\xBF" + drawing_of("");
  EXPECT_EQ(rewritten(bytes), bytes);
}

TEST(FileAscii, remarks_keep_their_place) {
  const std::string bytes = "999\nmade by hand\n" + drawing_of("  0\nLINE\n999\nin the middle\n  8\n0\n");
  File file = File::read(bytes, "plan.dxf");
  EXPECT_EQ(file.records().first()->type(), "");
  dxf::Record& line = *file.records().first()->next()->next();
  line.set_string(2, u"walls");
  EXPECT_EQ(file.write(), "999\nmade by hand\n" + drawing_of("  0\nLINE\n999\nin the middle\n  8\nwalls\n"));
}

TEST(FileAscii, blanks_around_codes_and_values_are_kept) {
  const std::string bytes = drawing_of(" \t0 \nTEXT \n  1 \n  two blanks each side  \n 62\n     7\n");
  File file = File::read(bytes, "plan.dxf");
  EXPECT_EQ(entity(file).type(), "TEXT");
  EXPECT_EQ(entity(file).get_string(1), u"  two blanks each side  ");
  EXPECT_EQ(file.write(), bytes);
  entity(file).set_string(1, u" x ");
  EXPECT_EQ(file.write(), drawing_of(" \t0 \nTEXT \n  1 \n x \n 62\n     7\n"));
}

TEST(FileAscii, an_empty_value_line_is_an_empty_string) {
  File file = File::read(drawing_of("  0\nMTEXT\n  1\n\n  7\nStandard\n"), "plan.dxf");
  EXPECT_EQ(entity(file).get_string(1), u"");
  EXPECT_EQ(entity(file).get_string(2), u"Standard");
}

TEST(FileAscii, a_group_knows_its_line) {
  const File file = File::read(drawing_of("  0\nLINE\n  8\n0\n"), "plan.dxf");
  EXPECT_EQ((*file.records().first()->next())[0].line(), 5u);
  EXPECT_EQ((*file.records().first()->next())[1].line(), 7u);
}

TEST(FileAscii, codes_outside_the_table_are_kept_as_text) {
  const std::string bytes = drawing_of("  0\nLINE\n  500\nwhatever\n 1500\nelse\n");
  EXPECT_EQ(rewritten(bytes), bytes);
}

TEST(FileAscii, strings_are_utf8_from_r2007_on) {
  File old = File::read(drawing_of("AC1018", "  0\nTEXT\n  1\n\xFC\n"), "plan.dxf");
  File modern = File::read(drawing_of("AC1021", "  0\nTEXT\n  1\n\xC3\xBC\n"), "plan.dxf");
  EXPECT_EQ(old.section("ENTITIES")->begin->next()->get_string(1), u"ü");
  EXPECT_EQ(modern.section("ENTITIES")->begin->next()->get_string(1), u"ü");
}

TEST(FileAscii, the_header_names_the_code_page) {
  const std::string header =
      "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$DWGCODEPAGE\n  3\nansi_1251\n  "
      "0\nENDSEC\n";
  File file = File::read(header + drawing_of("  0\nTEXT\n  1\n\xC0\n"), "plan.dxf");
  dxf::Record& text = *file.section("ENTITIES")->begin->next();
  EXPECT_EQ(text.get_string(1), u"А");
  text.set_string(1, u"Б∅");
  EXPECT_EQ(file.write(), header + drawing_of("  0\nTEXT\n  1\n\xC1\\U+2205\n"));
}

TEST(FileAscii, the_oldest_versions_count_as_r12) {
  for (const char* name : {"AC1.2", "AC2.10", "AC1003", "AC1009", "MC0.0", "AC99999999999"})
    EXPECT_EQ(File::read(drawing_of(name, ""), "plan.dxf").version(), dxf::R12) << name;
  EXPECT_EQ(File::read(drawing_of("AC1032", ""), "plan.dxf").version(), dxf::R2018);
}

TEST(FileAscii, sections_may_repeat_and_stand_in_any_order) {
  const std::string bytes = "0\nSECTION\n2\nMINE\n0\nENDSEC\n" +
                            lines({"0", "SECTION", "2", "ENTITIES", "0", "ENDSEC"}) + "0\nBETWEEN\n" +
                            drawing_of("  0\nLINE\n");
  const File file = File::read(bytes, "plan.dxf");
  const auto sections = file.sections();
  ASSERT_EQ(sections.size(), 3u);
  EXPECT_EQ(sections[0].name, "MINE");
  EXPECT_EQ(sections[1].name, "ENTITIES");
  EXPECT_EQ(sections[2].name, "ENTITIES");
  EXPECT_EQ(sections[2].begin->next()->type(), "LINE");
  EXPECT_EQ(sections[2].end->type(), "ENDSEC");
  EXPECT_EQ(file.section("ENTITIES")->begin, sections[1].begin);
  EXPECT_FALSE(file.section("TABLES").has_value());
  EXPECT_EQ(file.write(), bytes);
}

TEST(FileAscii, a_section_may_lack_its_end_when_the_end_mark_is_there) {
  const std::string bytes = "0\nSECTION\n2\nENTITIES\n0\nLINE\n0\nEOF\n";
  const File file = File::read(bytes, "plan.dxf");
  EXPECT_EQ(file.sections().at(0).end, nullptr);
  EXPECT_EQ(file.write(), bytes);
}

TEST(FileAscii, a_line_of_a_hundred_megabytes_is_read_at_once) {
  const std::string bytes =
      drawing_of("  0\nMTEXT\n  1\n" + std::string(100 << 20, 'x') + "\n  7\nStandard\n");
  File file = File::read(bytes, "plan.dxf");
  EXPECT_EQ(entity(file).get_string(1).size(), 100u << 20);
  EXPECT_EQ(entity(file).get_string(2), u"Standard");
}

TEST(FileAscii, a_million_groups_in_one_record_are_read_and_searched_in_linear_time) {
  std::string groups = "  0\nXRECORD\n";
  for (int i = 0; i < 1000000; ++i) groups += "102\n{A\n";
  const File file = File::read(drawing_of(groups + "  8\nlast\n"), "plan.dxf");
  const dxf::Record& record = *file.records().first()->next();
  EXPECT_EQ(record.string_or(8, record.whole(), u""), u"last");
}

}  // namespace
