#include <gtest/gtest.h>

#include <random>

#include "mtext/entity/mtext_layout.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/column_join.h"
#include "tests/mtext/entity/seen_text.h"

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

  std::vector<std::u16string> columns(const OdString& contents,
                                      OdDbMTextLayout::Spelling spelling = OdDbMTextLayout::kKeepsSpelling) {
    text->setContents(contents);
    std::vector<std::u16string> found;
    for (const OdString& each : layout.columnContents(*text, spelling)) found.push_back(each.str());
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

TEST_F(ColumnContents, codes_may_be_written_in_another_way_where_that_is_asked) {
  EXPECT_EQ(columns(u"{one\\N}two", OdDbMTextLayout::kAnySpelling), (Texts{u"one\\N", u"two"}));
  EXPECT_EQ(columns(u"{\\H1x;ONE\\NTWO}", OdDbMTextLayout::kAnySpelling), (Texts{u"ONE\\N", u"TWO"}));
}

TEST_F(ColumnContents, a_text_that_another_spelling_would_change_is_left_alone) {
  EXPECT_TRUE(columns(u"\\S1\\;2/3;\\Nb", OdDbMTextLayout::kAnySpelling).empty());
}

TEST_F(ColumnContents, a_paragraph_that_goes_on_has_no_first_line_in_the_next_column) {
  EXPECT_EQ(columns(u"\\pxi1,l1;aaaaaa bbbbbb cccccc dddddd\\Pe"),
            (Texts{u"\\pxi1,l1;aaaaaa bbbbbb cccccc ", u"\\pxl1;dddddd\\P\\pi1;e"}));
}

TEST_F(ColumnContents, a_text_with_fields_is_left_alone) {
  EXPECT_TRUE(columns(u"%<\\AcVar Date>%\\Nb").empty());
}

TEST_F(ColumnContents, whatever_a_text_holds_its_columns_are_the_text) {
  constexpr const char16_t* kTokens[] = {u"word ",
                                         u"ab c",
                                         u" ",
                                         u"  ",
                                         u"\t",
                                         u"\\P",
                                         u"\\N",
                                         u"{\\C1;",
                                         u"}",
                                         u"\\C2;",
                                         u"\\H2x;",
                                         u"\\H3;",
                                         u"\\L",
                                         u"\\l",
                                         u"\\W0.5;",
                                         u"{\\fArial|b1|i0|c0|p34;",
                                         u"\\S1/2;",
                                         u"\\{",
                                         u"\\\\",
                                         u"\\~",
                                         u"%%d",
                                         u"longerword",
                                         u"\\pxi1,l2,t1,r3;",
                                         u"\\pxi0,l0,tz;",
                                         u"\\pxqc;",
                                         u"\\pxsm1.5;",
                                         u"\\pxb1;",
                                         u"\\U+0041",
                                         u"1.\t"};
  mtext::format::string base;
  base.height_kind = 0;
  std::mt19937 random(20260302);
  std::size_t several = 0;
  for (int round = 0; round < 400; ++round) {
    std::u16string codes;
    for (auto length = random() % 30; length > 0; --length) codes += kTokens[random() % std::size(kTokens)];
    SCOPED_TRACE(odToUtf8(codes));
    const Texts cut = columns(codes, OdDbMTextLayout::kAnySpelling);
    ASSERT_FALSE(cut.empty());
    mtext_test::expect_alike(mtext_test::seen_in(odJoinColumns(cut), base), mtext_test::seen_in(codes, base));
    if (HasFailure()) return;
    several += cut.size() > 2 ? 1 : 0;
  }
  EXPECT_GT(several, 100U);
}
