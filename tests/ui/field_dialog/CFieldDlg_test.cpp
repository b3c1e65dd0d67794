#include "ui/field_dialog/CFieldDlg.h"

#include <gtest/gtest.h>

#include "od/base/unicode.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLine.h"

namespace {

std::size_t kind_named(std::u16string_view label) {
  const auto kinds = fields::kinds();
  for (std::size_t at = 0; at < kinds.size(); ++at)
    if (kinds[at].label == label) return at;
  ADD_FAILURE() << "no such kind";
  return 0;
}

}  // namespace

TEST(CFieldDlg, begins_with_a_date_in_its_first_format) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const CFieldDlg dialog(*database);
  EXPECT_EQ(odToUtf8(dialog.code()), "\\AcVar Date \\f \"yyyy-MM-dd\"");
  EXPECT_EQ(dialog.preview().size(), 10U);
}

TEST(CFieldDlg, makes_the_code_of_each_kind_and_format) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  CFieldDlg dialog(*database);
  for (std::size_t kind = 0; kind < fields::kinds().size(); ++kind) {
    dialog.choose_kind(kind);
    EXPECT_EQ(dialog.format(), 0U);
    for (std::size_t format = 0; format < dialog.kind_row().formats.size(); ++format) {
      dialog.choose_format(format);
      EXPECT_TRUE(dialog.code().starts_with(dialog.kind_row().code));
      EXPECT_TRUE(dialog.can_finish());
    }
  }
}

TEST(CFieldDlg, names_an_object_by_the_digits_of_its_handle) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  auto line = odNew<OdDbLine>();
  line->setEndPoint({3, 4, 0});
  odOpen<OdDbBlockTableRecord>(database->getModelSpaceId(), OdDb::kForWrite)->appendOdDbEntity(line.get());
  CFieldDlg dialog(*database);
  dialog.choose_kind(kind_named(u"Object property"));
  dialog.set_argument(line->handle().ascii().str());
  dialog.choose_format(2);
  EXPECT_EQ(odToUtf8(dialog.preview()), "5.0");
  dialog.choose_property(5);
  EXPECT_EQ(odToUtf8(dialog.preview()), "0");
  dialog.set_argument(u"no handle");
  EXPECT_EQ(odToUtf8(dialog.preview()), "####");
}

TEST(CFieldDlg, works_out_expressions_and_shows_variables) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  CFieldDlg dialog(*database);
  dialog.choose_kind(kind_named(u"Expression"));
  dialog.choose_format(1);
  dialog.set_argument(u"(%<\\AcVar LUNITS>% + 1) * 2");
  EXPECT_EQ(odToUtf8(dialog.preview()), "6");
  dialog.choose_kind(kind_named(u"System variable"));
  dialog.set_argument(u"LUNITS");
  EXPECT_EQ(odToUtf8(dialog.preview()), "2");
}

TEST(CFieldDlg, takes_a_code_that_is_written_by_hand) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  CFieldDlg dialog(*database);
  dialog.set_code(u"\\AcVar LUNITS");
  EXPECT_EQ(odToUtf8(dialog.preview()), "2");
  EXPECT_EQ(dialog.result()->getFieldCode(OdDbField::kAddMarkers), OdString(u"%<\\AcVar LUNITS>%"));
  dialog.set_code(u"  ");
  EXPECT_FALSE(dialog.can_finish());
  EXPECT_TRUE(dialog.preview().empty());
}

TEST(CFieldDlg, opens_with_kind_and_format_of_a_field_that_it_knows) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const CFieldDlg dialog(*database, *OdDbField::createFromCode(u"\\AcVar Filename \\f \"%fn2\""));
  EXPECT_EQ(dialog.kind(), kind_named(u"File name"));
  EXPECT_EQ(dialog.format(), 1U);
  EXPECT_EQ(odToUtf8(dialog.code()), "\\AcVar Filename \\f \"%fn2\"");
}

TEST(CFieldDlg, keeps_the_code_of_a_field_that_it_does_not_know) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const CFieldDlg dialog(*database, *OdDbField::createFromCode(u"\\AcVar DateOfNothing \\f \"x\""));
  EXPECT_EQ(odToUtf8(dialog.code()), "\\AcVar DateOfNothing \\f \"x\"");
}
