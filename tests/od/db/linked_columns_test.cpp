#include <gtest/gtest.h>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbMText.h"
#include "od/db/mtext_columns.h"
#include "od/field/OdDbField.h"
#include "tests/od/db/group_lines.h"

// Texts of drawings before R2018 whose further columns are entities of their own.

namespace {

std::string text(const std::string& handle, const std::string& groups) {
  return "0 MTEXT 5 " + handle +
         " 330 1F 100 AcDbEntity 8 0 100 AcDbMText 10 0.0 20 0.0 30 0.0 40 1.0 41 10.0 " + groups + " ";
}

std::string columnInfo(int type, int automatic, int count) {
  return "1001 ACAD 1000 ACAD_MTEXT_COLUMN_INFO_BEGIN 1070 75 1070 " + std::to_string(type) +
         " 1070 79 1070 " + std::to_string(automatic) + " 1070 76 1070 " + std::to_string(count) +
         " 1070 78 1070 0 1070 48 1040 10.0 1070 49 1040 2.0 1000 ACAD_MTEXT_COLUMN_INFO_END";
}

std::string linked(const std::string& handles) {
  return " 1000 ACAD_MTEXT_COLUMNS_BEGIN 1070 47 1070 3 " + handles + " 1000 ACAD_MTEXT_COLUMNS_END";
}

std::string drawing(const std::string& entities, const std::string& objects = "") {
  return lines(
      "0 SECTION 2 HEADER 9 $ACADVER 1 AC1021 9 $HANDSEED 5 100 0 ENDSEC " +
      std::string("0 SECTION 2 TABLES 0 TABLE 2 BLOCK_RECORD 5 1 70 1 0 BLOCK_RECORD 5 1F 100 "
                  "AcDbSymbolTableRecord 100 AcDbBlockTableRecord 2 *Model_Space 0 ENDTAB 0 ENDSEC ") +
      "0 SECTION 2 ENTITIES " + entities + "0 ENDSEC 0 SECTION 2 OBJECTS " + objects + "0 ENDSEC 0 EOF");
}

/// Three columns of 10 with 2 between them, whose second and third are texts of their own.
std::string threeColumns(const std::string& attachment = "1") {
  const std::string place = "71 " + attachment + " ";
  return drawing(text("20", place + "1 one\\N " + columnInfo(1, 0, 3) + linked("1005 21 1005 22")) +
                 text("21", place + "1 two\\N") + text("22", place + "1 three"));
}

/// A layout that begins a column behind each "\N", and finds every text 8 wide and 4 high.
struct BreakLayout : OdDbMTextLayout {
  OdDbMTextMeasure measure(const OdDbMText&) override { return {8, 4, {0, -4}, {8, 0}}; }
  void draw(const OdDbMText&, OdGiWorldDraw&) override {}
  std::vector<OdString> columnContents(const OdDbMText& text, Spelling) override {
    std::vector<OdString> columns;
    const std::u16string contents = text.contents().str();
    std::size_t begin = 0;
    for (std::size_t end = contents.find(u"\\N"); end != contents.npos; end = contents.find(u"\\N", begin)) {
      columns.emplace_back(contents.substr(begin, end + 2 - begin));
      begin = end + 2;
    }
    columns.emplace_back(contents.substr(begin));
    return columns;
  }
};

/// The same, which would write the codes of every text in another way.
struct RespellingLayout : BreakLayout {
  std::vector<OdString> columnContents(const OdDbMText& text, Spelling spelling) override {
    return spelling == kAnySpelling ? BreakLayout::columnContents(text, spelling) : std::vector<OdString>();
  }
};

struct Sample {
  OdDbDatabasePtr database;

  explicit Sample(const std::string& bytes) : database(OdDbDatabase::readBytes(bytes, "sample")) {}

  std::vector<OdDbObjectId> entities() const {
    return odOpen<OdDbBlockTableRecord>(database->getModelSpaceId())->entities();
  }
  OdDbMTextPtr text(std::size_t index = 0) const {
    return odOpen<OdDbMText>(entities().at(index), OdDb::kForWrite);
  }
  OdDbMTextPtr byHandle(std::uint64_t handle) const {
    return odOpen<OdDbMText>(database->getOdDbObjectId(OdDbHandle(handle)));
  }
  /// What each entity of the text says, as another program would read the saved drawing.
  static std::vector<OdString> saved(const OdDbDatabasePtr& database) {
    return Sample(database->writeBytes()).text()->contentsByEntity();
  }
};

Sample laidOut(const std::string& bytes) {
  Sample sample(bytes);
  sample.database->setTextLayout(std::make_shared<BreakLayout>());
  return sample;
}

using Texts = std::vector<OdString>;

}  // namespace

TEST(LinkedColumns, the_block_shows_one_text_with_all_its_columns) {
  const Sample sample(threeColumns());
  ASSERT_EQ(sample.entities().size(), 1U);
  EXPECT_EQ(sample.text()->contents(), OdString(u"one\\Ntwo\\Nthree"));
  EXPECT_EQ(sample.text()->linkedColumns().size(), 2U);
  EXPECT_EQ(sample.byHandle(0x21)->contents(), OdString(u"two\\N"));
}

TEST(LinkedColumns, a_drawing_that_nobody_changed_is_written_as_it_was) {
  const Sample sample = laidOut(threeColumns());
  EXPECT_EQ(sample.text()->contents(), OdString(u"one\\Ntwo\\Nthree"));
  EXPECT_EQ(sample.database->writeBytes(), threeColumns());
}

TEST(LinkedColumns, the_order_is_that_of_the_handles_and_not_that_of_the_file) {
  std::string bytes = threeColumns();
  const std::string inOrder = lines("1005 21 1005 22");
  bytes.replace(bytes.find(inOrder), inOrder.size(), lines("1005 22 1005 21"));
  EXPECT_EQ(Sample(bytes).text()->contents(), OdString(u"one\\Nthreetwo\\N"));
}

TEST(LinkedColumns, handles_that_name_no_free_text_are_left_out) {
  const std::string names = columnInfo(1, 0, 3) + linked("1005 20 1005 99 1005 23 1005 24 1005 22");
  const Sample sample(
      drawing(text("20", "1 one " + names) + text("22", "1 two") +
              "0 LINE 5 23 330 1F 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 0.0 11 1.0 21 0.0 " +
              text("24", "1 other " + columnInfo(1, 0, 3) + linked("1005 22 1005 20"))));
  ASSERT_EQ(sample.entities().size(), 3U);
  EXPECT_EQ(sample.text()->contents(), OdString(u"onetwo"));
  EXPECT_EQ(sample.text(2)->contents(), OdString(u"other"));
}

TEST(LinkedColumns, a_text_of_another_block_is_no_column) {
  const std::string block =
      "0 SECTION 2 BLOCKS 0 BLOCK 5 30 100 AcDbEntity 8 0 100 AcDbBlockBegin 2 B 70 0 10 "
      "0.0 20 0.0 " +
      text("21", "1 two") + "0 ENDBLK 5 31 100 AcDbEntity 8 0 0 ENDSEC";
  std::string bytes = drawing(text("20", "1 one " + columnInfo(1, 0, 2) + linked("1005 21")));
  bytes.insert(bytes.find(lines("0 SECTION 2 ENTITIES")), lines(block));
  EXPECT_EQ(Sample(bytes).text()->contents(), OdString(u"one"));
}

TEST(LinkedColumns, erasing_the_text_takes_its_columns_and_brings_them_back) {
  const Sample sample(threeColumns());
  const OdDbMTextPtr text = sample.text();
  text->erase();
  EXPECT_TRUE(Sample(sample.database->writeBytes()).entities().empty());
  text->erase(/*erasing=*/false);
  EXPECT_EQ(sample.database->writeBytes(), threeColumns());
}

TEST(LinkedColumns, a_copy_outside_the_drawing_shows_them_and_leaves_the_drawing_alone) {
  const Sample sample(threeColumns());
  const auto copy = odCast<OdDbMText>(sample.text()->clone());
  EXPECT_EQ(copy->contents(), OdString(u"one\\Ntwo\\Nthree"));
  copy->setContents(u"other");
  EXPECT_EQ(copy->contents(), OdString(u"other"));
  EXPECT_EQ(sample.database->writeBytes(), threeColumns());
}

TEST(LinkedColumns, without_a_layout_new_contents_stand_in_the_first_one_whole) {
  const Sample sample(threeColumns());
  sample.text()->setContents(u"a\\Nb");
  EXPECT_EQ(sample.text()->contents(), OdString(u"a\\Nb"));
  EXPECT_EQ(Sample::saved(sample.database), (Texts{u"a\\Nb", u"", u""}));
}

TEST(LinkedColumns, new_contents_are_spread_over_them_when_the_drawing_is_saved) {
  const Sample sample = laidOut(threeColumns());
  sample.text()->setContents(u"a\\Nb\\Nc");
  EXPECT_EQ(Sample::saved(sample.database), (Texts{u"a\\N", u"b\\N", u"c"}));
}

TEST(LinkedColumns, setting_the_contents_that_they_have_changes_nothing) {
  const Sample sample = laidOut(threeColumns());
  sample.text()->setContents(u"one\\Ntwo\\Nthree");
  EXPECT_FALSE(sample.database->isModified());
  EXPECT_EQ(sample.database->writeBytes(), threeColumns());
}

TEST(LinkedColumns, a_text_that_needs_more_of_them_gets_them_in_its_own_look) {
  const Sample sample = laidOut(threeColumns());
  sample.text()->setColorIndex(1);
  sample.text()->setContents(u"a\\Nb\\Nc\\Nd");
  const Sample saved(sample.database->writeBytes());
  EXPECT_EQ(saved.entities().size(), 1U);
  EXPECT_EQ(saved.text()->contentsByEntity(), (Texts{u"a\\N", u"b\\N", u"c\\N", u"d"}));
  EXPECT_EQ(saved.text()->getColumnCount(), 4);
  const auto fourth = odOpen<OdDbMText>(saved.text()->linkedColumns().at(2));
  EXPECT_EQ(fourth->location().x, 36);
  EXPECT_EQ(fourth->textHeight(), 1);
  EXPECT_EQ(fourth->width(), 10);
  EXPECT_EQ(fourth->colorIndex(), 1);
}

TEST(LinkedColumns, a_new_count_makes_and_erases_them) {
  const Sample more = laidOut(threeColumns()), less = laidOut(threeColumns());
  more.text()->setColumnCount(5);
  EXPECT_EQ(Sample::saved(more.database), (Texts{u"one\\N", u"two\\N", u"three", u"", u""}));
  less.text()->setContents(u"a\\Nb");
  less.text()->setColumnCount(2);
  const Sample saved(less.database->writeBytes());
  EXPECT_EQ(saved.text()->contentsByEntity(), (Texts{u"a\\N", u"b"}));
  EXPECT_EQ(saved.byHandle(0x22).get(), nullptr);
}

TEST(LinkedColumns, without_a_layout_the_text_of_those_that_go_stays_in_the_first) {
  const Sample sample(threeColumns());
  sample.text()->setColumnCount(2);
  EXPECT_EQ(Sample::saved(sample.database), (Texts{u"one\\Ntwo\\Nthree", u""}));
}

TEST(LinkedColumns, a_text_that_has_no_columns_any_more_gathers_all_of_it) {
  const Sample sample = laidOut(threeColumns());
  sample.text()->setColumnType(OdDb::kNoColumns);
  EXPECT_EQ(sample.text()->contents(), OdString(u"one\\Ntwo\\Nthree"));
  const Sample saved(sample.database->writeBytes());
  EXPECT_EQ(saved.text()->contentsByEntity(), (Texts{u"one\\Ntwo\\Nthree"}));
  EXPECT_EQ(saved.byHandle(0x21).get(), nullptr);
  EXPECT_EQ(sample.database->writeBytes().find("ACAD_MTEXT_COLUMN"), std::string::npos);
}

TEST(LinkedColumns, a_moved_and_turned_text_takes_them_along) {
  const Sample sample = laidOut(threeColumns());
  sample.text()->setLocation({100, 50, 0});
  sample.text()->setDirection({0, 1, 0});
  const Sample saved(sample.database->writeBytes());
  EXPECT_TRUE(saved.byHandle(0x21)->location().isEqualTo({100, 62, 0}));
  EXPECT_TRUE(saved.byHandle(0x22)->location().isEqualTo({100, 74, 0}));
  EXPECT_TRUE(saved.byHandle(0x22)->direction().isEqualTo({0, 1, 0}));
}

TEST(LinkedColumns, a_new_width_and_gutter_move_them) {
  const Sample sample = laidOut(threeColumns());
  sample.text()->setColumnWidth(20);
  sample.text()->setColumnGutterWidth(5);
  const Sample saved(sample.database->writeBytes());
  EXPECT_EQ(saved.byHandle(0x21)->location().x, 25);
  EXPECT_EQ(saved.byHandle(0x22)->location().x, 50);
  EXPECT_EQ(saved.byHandle(0x22)->width(), 20);
}

TEST(LinkedColumns, those_of_a_centred_text_lie_on_both_sides_of_its_point) {
  const Sample centred = laidOut(threeColumns("2")), right = laidOut(threeColumns("3"));
  centred.text()->setColumnGutterWidth(0);
  right.text()->setColumnGutterWidth(0);
  const Sample savedCentred(centred.database->writeBytes()), savedRight(right.database->writeBytes());
  EXPECT_EQ(savedCentred.byHandle(0x21)->location().x, 0);
  EXPECT_EQ(savedCentred.byHandle(0x22)->location().x, 10);
  EXPECT_EQ(savedRight.byHandle(0x21)->location().x, -10);
  EXPECT_EQ(savedRight.byHandle(0x22)->location().x, 0);
}

TEST(LinkedColumns, new_contents_alone_leave_them_where_they_are) {
  std::string bytes = threeColumns();
  const std::string origin = lines("0 MTEXT 5 21 330 1F 100 AcDbEntity 8 0 100 AcDbMText 10 0.0");
  std::string elsewhere = origin;
  elsewhere.replace(elsewhere.size() - 4, 3, "7.5");
  bytes.replace(bytes.find(origin), origin.size(), elsewhere);
  const Sample sample = laidOut(bytes);
  sample.text()->setContents(u"a\\Nb\\Nc");
  EXPECT_EQ(Sample(sample.database->writeBytes()).byHandle(0x21)->location().x, 7.5);
}

TEST(LinkedColumns, a_count_beyond_all_measure_makes_no_thousands_of_entities) {
  const Sample sample = laidOut(drawing(text("20", "1 one " + columnInfo(1, 0, 9999))));
  sample.text()->setTextHeight(2);
  EXPECT_EQ(Sample(sample.database->writeBytes()).text()->linkedColumns().size(), 99U);
}

TEST(LinkedColumns, a_text_that_gets_columns_in_an_old_drawing_gets_its_entities) {
  const Sample sample = laidOut(drawing(text("20", "1 one\\Ntwo 46 4.0")));
  OdDbMTextPtr text = sample.text();
  text->setColumnType(OdDb::kStaticColumns);
  text->setColumnCount(2);
  text->setColumnWidth(10);
  const Sample saved(sample.database->writeBytes());
  EXPECT_EQ(saved.entities().size(), 1U);
  EXPECT_EQ(saved.text()->contentsByEntity(), (Texts{u"one\\N", u"two"}));
  EXPECT_EQ(odOpen<OdDbMText>(saved.text()->linkedColumns().at(0))->height(), 4);
}

TEST(LinkedColumns, saving_twice_writes_the_same_bytes) {
  const Sample sample = laidOut(threeColumns());
  sample.text()->setContents(u"a\\Nb\\Nc\\Nd");
  const std::string once = sample.database->writeBytes();
  EXPECT_EQ(sample.database->writeBytes(), once);
}

TEST(LinkedColumns, an_erased_text_still_tells_what_it_said) {
  const Sample sample(threeColumns());
  const OdDbMTextPtr text = sample.text();
  text->erase();
  EXPECT_EQ(text->contents(), OdString(u"one\\Ntwo\\Nthree"));
}

TEST(LinkedColumns, a_column_that_tells_of_columns_itself_gets_none_of_its_own) {
  const Sample sample = laidOut(drawing(text("20", "1 one\\N " + columnInfo(1, 0, 2) + linked("1005 21")) +
                                        text("21", "1 two " + columnInfo(1, 0, 2))));
  sample.text()->setContents(u"a\\Nb");
  const Sample saved(sample.database->writeBytes());
  EXPECT_EQ(saved.entities().size(), 1U);
  EXPECT_EQ(saved.text()->contentsByEntity(), (Texts{u"a\\N", u"b"}));
}

TEST(LinkedColumns, codes_are_written_in_another_way_only_where_the_text_was_changed) {
  const Sample moved(threeColumns()), changed(threeColumns());
  for (const Sample& each : {moved, changed})
    each.database->setTextLayout(std::make_shared<RespellingLayout>());
  moved.text()->setTextHeight(2);
  changed.text()->setContents(u"a\\Nb\\Nc");
  EXPECT_EQ(Sample::saved(moved.database), (Texts{u"one\\N", u"two\\N", u"three"}));
  EXPECT_EQ(Sample::saved(changed.database), (Texts{u"a\\N", u"b\\N", u"c"}));
}

TEST(LinkedColumns, columns_of_automatic_height_that_nobody_counted_stay) {
  const Sample sample(drawing(text("20", "1 one\\N " + columnInfo(2, 1, 0) + linked("1005 21 1005 22")) +
                              text("21", "1 two\\N") + text("22", "1 three")));
  sample.text()->setTextHeight(2);
  EXPECT_EQ(Sample::saved(sample.database), (Texts{u"one\\N", u"two\\N", u"three"}));
}

TEST(LinkedColumns, a_wrong_count_that_is_put_right_moves_none_of_them) {
  const Sample sample = laidOut(
      drawing(text("20", "1 one\\N " + columnInfo(1, 0, 1) + linked("1005 21")) + text("21", "1 two")));
  sample.text()->setContents(u"a\\Nb");
  const Sample saved(sample.database->writeBytes());
  EXPECT_EQ(saved.text()->getColumnCount(), 2);
  EXPECT_EQ(saved.byHandle(0x21)->location().x, 0);
}

TEST(LinkedColumns, a_new_drawing_that_has_them_in_the_old_form_keeps_it) {
  std::string bytes = threeColumns();
  bytes.replace(bytes.find("AC1021"), 6, "AC1032");
  const Sample sample = laidOut(bytes);
  sample.text()->setContents(u"a\\Nb\\Nc");
  EXPECT_EQ(Sample::saved(sample.database), (Texts{u"a\\N", u"b\\N", u"c"}));
}

TEST(LinkedColumns, a_text_in_the_newest_form_has_none_whatever_its_old_form_names) {
  std::string bytes = threeColumns();
  bytes.replace(bytes.find("AC1021"), 6, "AC1032");
  bytes.insert(bytes.find("1001\n"), lines("101 Embedded~Object 70 1 71 1 72 2 44 10.0 45 2.0"));
  const Sample sample = laidOut(bytes);
  EXPECT_EQ(sample.entities().size(), 3U);
  EXPECT_EQ(sample.text()->contents(), OdString(u"one\\N"));
  sample.text()->setContents(u"other");
  EXPECT_EQ(Sample(sample.database->writeBytes()).text(1)->contents(), OdString(u"two\\N"));
}
