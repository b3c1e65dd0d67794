#include <gtest/gtest.h>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbMText.h"
#include "od/db/mtext_columns.h"
#include "od/field/OdDbField.h"
#include "tests/od/db/made_fields.h"

// Fields in texts whose further columns are entities of their own.

namespace {

/// All text in the first of two columns.
struct TwoColumnLayout : OdDbMTextLayout {
  OdDbMTextMeasure measure(const OdDbMText&) override { return {}; }
  void draw(const OdDbMText&, OdGiWorldDraw&) override {}
  std::vector<OdString> columnContents(const OdDbMText& text, Spelling) override {
    return {text.contents(), u""};
  }
};

/// A text of two columns in an old drawing, each with a field: "At noon\N" and "by ann".
struct TwoColumns {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R2007);
  OdDbMTextPtr text = odNew<OdDbMText>();

  TwoColumns() {
    odOpen<OdDbBlockTableRecord>(database->getModelSpaceId(), OdDb::kForWrite)->appendOdDbEntity(text.get());
    text->setColumnType(OdDb::kStaticColumns);
    text->setColumnCount(2);
    text->setColumnWidth(10);
    database->setTextLayout(std::make_shared<TwoColumnLayout>());
    database->writeBytes();
    database->setTextLayout(nullptr);
    text->setField(u"TEXT", *container(u"At %<\\_FldIdx 0>%\\N", {shownField(u"\\AcVar Date", u"noon")}));
    column()->setField(u"TEXT", *container(u"by %<\\_FldIdx 0>%", {shownField(u"\\AcVar Author", u"ann")}));
  }

  OdDbMTextPtr column() const { return odOpen<OdDbMText>(text->linkedColumns().at(0), OdDb::kForWrite); }
};

}  // namespace

TEST(LinkedColumnFields, those_of_all_columns_are_read_as_one_container) {
  const TwoColumns sample;
  EXPECT_EQ(sample.text->contents(), OdString(u"At noon\\Nby ann"));
  const OdDbFieldPtr field = fieldOf(*sample.text);
  EXPECT_EQ(field->getFieldCode(OdDbField::kFieldCode), OdString(u"At %<\\_FldIdx 0>%\\Nby %<\\_FldIdx 1>%"));
  ASSERT_EQ(field->childCount(), 2);
  EXPECT_EQ(field->getChild(1)->getFieldCode(OdDbField::kEvaluatedText), OdString(u"ann"));
}

TEST(LinkedColumnFields, a_column_without_a_field_is_its_text_there) {
  const TwoColumns sample;
  sample.text->OdDbObject::removeField(u"TEXT");
  const OdDbFieldPtr field = fieldOf(*sample.text);
  EXPECT_EQ(field->getFieldCode(OdDbField::kFieldCode), OdString(u"At noon\\Nby %<\\_FldIdx 0>%"));
}

TEST(LinkedColumnFields, a_new_field_takes_the_place_of_all) {
  const TwoColumns sample;
  sample.text->setField(u"TEXT", *fieldOf(*sample.text));
  EXPECT_EQ(sample.text->contents(), OdString(u"At noon\\Nby ann"));
  EXPECT_EQ(fieldOf(*sample.column()).get(), nullptr);
  EXPECT_EQ(fieldOf(*sample.text)->childCount(), 2);
}

TEST(LinkedColumnFields, removing_the_field_removes_those_of_all_columns_and_keeps_the_text) {
  const TwoColumns sample;
  sample.text->removeField(u"TEXT");
  EXPECT_EQ(sample.text->contents(), OdString(u"At noon\\Nby ann"));
  EXPECT_EQ(fieldOf(*sample.text).get(), nullptr);
  EXPECT_EQ(fieldOf(*sample.column()).get(), nullptr);
}

TEST(LinkedColumnFields, a_text_that_has_no_columns_any_more_keeps_its_fields) {
  const TwoColumns sample;
  sample.text->setColumnType(OdDb::kNoColumns);
  const auto again = OdDbDatabase::readBytes(sample.database->writeBytes(), "again");
  const auto text =
      odOpen<OdDbMText>(odOpen<OdDbBlockTableRecord>(again->getModelSpaceId())->entities().at(0));
  EXPECT_EQ(text->contents(), OdString(u"At noon\\Nby ann"));
  ASSERT_TRUE(fieldOf(*text));
  EXPECT_EQ(fieldOf(*text)->childCount(), 2);
}

TEST(LinkedColumnFields, erasing_the_text_takes_the_fields_of_its_columns) {
  const TwoColumns sample;
  sample.text->erase();
  EXPECT_EQ(sample.database->writeBytes().find("100\nAcDbField\n"), std::string::npos);
}
