#include "od/dxf/chunked_text.h"

#include <gtest/gtest.h>

#include "drawing_bytes.h"
#include "od/dxf/file.h"

namespace {

using dxf::File;
using dxf::Record;

std::string drawing(std::string_view groups, std::string_view version = "AC1032") {
  return drawing_of(version, "  0\nMTEXT\n" + std::string(groups) + "  7\nStandard\n");
}

Record& mtext(File& file) { return *file.section("ENTITIES")->begin->next(); }

std::u16string read(const File& file) {
  const Record& record = *file.section("ENTITIES")->begin->next();
  return dxf::read_chunked_text(record, record.body());
}

void write(File& file, std::u16string_view text) {
  dxf::write_chunked_text(mtext(file), mtext(file).body(), 1, text);
}

std::string piece(int code, const std::string& text) {
  return "  " + std::to_string(code) + "\n" + text + "\n";
}

TEST(ChunkedText, pieces_are_joined_in_file_order) {
  const File file = File::read(drawing("  3\none \n  3\ntwo \n  1\nthree\n"), "plan.dxf");
  EXPECT_EQ(read(file), u"one two three");
}

TEST(ChunkedText, a_cut_may_fall_inside_a_character_an_escape_or_a_caret) {
  const File file = File::read(drawing("  3\n\xC3\n  3\n\xBC\\U+00\n  3\nB0 a^\n  1\nJb\n"), "plan.dxf");
  EXPECT_EQ(read(file), u"ü\\U+00B0 a\nb");
}

TEST(ChunkedText, a_short_text_is_one_last_piece) {
  File file = File::read(drawing(""), "plan.dxf");
  write(file, u"hello");
  EXPECT_EQ(file.write(), drawing("  1\nhello\n"));
}

TEST(ChunkedText, an_empty_text_is_an_empty_last_piece) {
  File file = File::read(drawing(""), "plan.dxf");
  write(file, u"");
  EXPECT_EQ(file.write(), drawing("  1\n\n"));
}

TEST(ChunkedText, a_long_text_is_cut_after_250_units) {
  File file = File::read(drawing("  1\nold\n"), "plan.dxf");
  write(file, std::u16string(600, u'a'));
  EXPECT_EQ(file.write(), drawing(piece(3, std::string(250, 'a')) + piece(3, std::string(250, 'a')) +
                                  piece(1, std::string(100, 'a'))));
}

TEST(ChunkedText, a_whole_number_of_pieces_ends_with_an_empty_one) {
  File file = File::read(drawing("  1\nold\n"), "plan.dxf");
  write(file, std::u16string(250, u'a'));
  EXPECT_EQ(file.write(), drawing(piece(3, std::string(250, 'a')) + piece(1, "")));
}

TEST(ChunkedText, a_caret_pair_counts_as_one_character) {
  File file = File::read(drawing("  1\nold\n"), "plan.dxf");
  write(file, std::u16string(249, u'a') + u"\nb");
  EXPECT_EQ(file.write(), drawing(piece(3, std::string(249, 'a') + "^J") + piece(1, "b")));
}

TEST(ChunkedText, an_escape_counts_with_all_its_letters) {
  File file = File::read(drawing("  1\nold\n", "AC1015"), "plan.dxf");
  write(file, std::u16string(248, u'a') + u"∅");
  EXPECT_EQ(file.write(), drawing(piece(3, std::string(248, 'a') + "\\U") + piece(1, "+2205"), "AC1015"));
  EXPECT_EQ(read(file), std::u16string(248, u'a') + u"\\U+2205");
}

TEST(ChunkedText, a_surrogate_pair_is_not_cut) {
  File file = File::read(drawing("  1\nold\n"), "plan.dxf");
  const std::u16string text = std::u16string(249, u'a') + u"😀b";
  write(file, text);
  EXPECT_EQ(read(file), text);
  EXPECT_EQ(mtext(file).get_string(1), std::u16string(249, u'a'));
}

TEST(ChunkedText, the_same_text_changes_nothing) {
  const std::string bytes = drawing("  3\nfirst \n  3\ncut elsewhere \n  1\nlast\n");
  File file = File::read(bytes, "plan.dxf");
  write(file, u"first cut elsewhere last");
  EXPECT_FALSE(mtext(file).changed());
  EXPECT_EQ(file.write(), bytes);
}

TEST(ChunkedText, the_same_text_with_what_the_code_page_lacks_changes_nothing) {
  const std::string bytes = drawing("  1\n\\U+2205\n", "AC1015");
  File file = File::read(bytes, "plan.dxf");
  write(file, u"∅");
  EXPECT_EQ(file.write(), bytes);
}

TEST(ChunkedText, pieces_in_front_of_the_change_keep_their_bytes) {
  File file = File::read(drawing("  3\nodd ^j \n  3\ntwo \n  1\nthree\n"), "plan.dxf");
  write(file, u"odd \n two, changed");
  EXPECT_EQ(file.write(), drawing("  3\nodd ^j \n  1\ntwo, changed\n"));
}

TEST(ChunkedText, pieces_behind_a_change_of_the_same_length_keep_their_bytes) {
  const std::string a(250, 'a');
  const std::string b(250, 'b');
  File file = File::read(drawing(piece(3, a) + piece(3, b) + piece(1, "^ c")), "plan.dxf");
  write(file, u"X" + std::u16string(249, u'a') + std::u16string(250, u'b') + u"^c");
  EXPECT_EQ(file.write(), drawing(piece(3, "X" + std::string(249, 'a')) + piece(3, b) + piece(1, "^ c")));
  EXPECT_FALSE(mtext(file)[2].changed());
  EXPECT_FALSE(mtext(file)[3].changed());
}

TEST(ChunkedText, a_shorter_text_drops_the_pieces_that_are_left) {
  const std::string a(250, 'a');
  File file = File::read(drawing(piece(3, a) + piece(3, a) + piece(3, a) + piece(1, "z")), "plan.dxf");
  write(file, std::u16string(250, u'a') + u"!");
  EXPECT_EQ(file.write(), drawing(piece(3, a) + piece(1, "!")));
}

TEST(ChunkedText, other_codes_may_be_named) {
  File file = File::read(drawing_of("AC1032", "  0\nFIELD\n  3\ncode \n  2\nrest\n"), "plan.dxf");
  Record& field = mtext(file);
  EXPECT_EQ(dxf::read_chunked_text(field, field.body(), {.more = 3, .last = 2}), u"code rest");
  dxf::write_chunked_text(field, field.body(), 1, u"new", {.more = 3, .last = 2});
  EXPECT_EQ(file.write(), drawing_of("AC1032", "  0\nFIELD\n  2\nnew\n"));
}

}  // namespace
