#include <gtest/gtest.h>

#include "mtext/entity/mtext_layout.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/column_join.h"

namespace {

/// A text of height 1 in columns of 10 that are as high as three lines.
struct ColumnContents : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  OdDbMTextPtr text = odNew<OdDbMText>();
  mtext::mtext_layout layout;

  ColumnContents() {
    text->setDatabaseDefaults(database.get());
    text->setTextHeight(1);
    text->setWidth(10);
    text->setHeight(5);
    text->setColumnType(OdDb::kDynamicColumns);
    text->setColumnAutoHeight(true);
    text->setColumnWidth(10);
    text->setColumnGutterWidth(1);
  }

  std::vector<std::u16string> columns(const OdString& contents) {
    text->setContents(contents);
    std::vector<std::u16string> found;
    for (const OdString& each : layout.columnContents(*text)) found.push_back(each.str());
    return found;
  }
};

using Texts = std::vector<std::u16string>;

/// The codes as the writer spells them.
std::u16string spelled(const std::u16string& codes) {
  mtext::multitext text;
  mtext::format::string base;
  mtext::parse(codes, base, text, {});
  return mtext::serialize(text, base, 1);
}

}  // namespace

TEST_F(ColumnContents, a_text_that_fills_one_column_is_that_column) {
  EXPECT_EQ(columns(u"one\\Ptwo"), (Texts{u"one\\Ptwo"}));
}

TEST_F(ColumnContents, a_column_ends_where_layout_ends_it) {
  EXPECT_EQ(columns(u"1\\P2\\P3\\P4\\P5"), (Texts{u"1\\P2\\P3\\P", u"4\\P5"}));
}

TEST_F(ColumnContents, a_forced_break_stays_with_the_column_that_it_ends) {
  EXPECT_EQ(columns(u"1\\N2\\N3"), (Texts{u"1\\N", u"2\\N", u"3"}));
}

TEST_F(ColumnContents, a_format_that_goes_on_is_set_again_in_the_next_column) {
  const Texts found = columns(u"{\\C1;a\\Nb}");
  EXPECT_EQ(found, (Texts{u"{\\C1;a\\N}", u"{\\C1;b}"}));
}

TEST_F(ColumnContents, indents_that_go_on_are_set_again_in_the_next_column) {
  const Texts found = columns(u"\\pxi1,l2;a\\Nb");
  EXPECT_EQ(found, (Texts{u"\\pxi1,l2;a\\N", u"\\pxi1,l2;b"}));
}

TEST_F(ColumnContents, put_together_they_are_the_text) {
  for (const std::u16string codes :
       {u"1\\P2\\P3\\P4\\P5\\P6\\P7\\P8",
        u"{\\C1;many words that run over the end of a line}\\Nmore and more", u"\\pxi1,l2;a\\N\\pi0,l0;b\\Nc",
        u"a\\N\\pxi3;b b b b b b b b b b b b b b b b b b b b b\\Nc",
        u"{\\H0.5x;small\\N}large\\N{\\Lunderlined and broken over many a line of this column}"}) {
    const Texts found = columns(codes);
    EXPECT_GT(found.size(), 1U);
    EXPECT_EQ(spelled(odJoinColumns(found)), spelled(codes));
  }
}

TEST_F(ColumnContents, codes_that_would_be_written_in_another_way_are_left_alone) {
  EXPECT_TRUE(columns(u"\\Kstruck\\N\\kout").empty());
  EXPECT_TRUE(columns(u"{one\\N}two").empty());
}

TEST_F(ColumnContents, a_text_with_fields_is_left_alone) {
  EXPECT_TRUE(columns(u"%<\\AcVar Date>%\\Nb").empty());
}
