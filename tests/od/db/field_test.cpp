#include <gtest/gtest.h>

#include <iostream>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"
#include "od/field/OdDbField.h"
#include "tests/od/db/group_lines.h"
#include "tests/od/db/sample_drawings.h"

namespace {

/// A text "####" (checksum 350) with a field of one child in its extension dictionary.
std::string textWithField(const std::string& text) {
  return lines(
      "0 SECTION 2 HEADER 9 $ACADVER 1 AC1015 0 ENDSEC 0 SECTION 2 ENTITIES "
      "0 MTEXT 5 20 102 {ACAD_XDICTIONARY 360 21 102 } 330 1F 100 AcDbEntity 8 0 100 AcDbMText "
      "10 0.0 20 0.0 30 0.0 40 2.5 1 " +
      text +
      " 0 ENDSEC 0 SECTION 2 OBJECTS "
      "0 DICTIONARY 5 21 330 20 100 AcDbDictionary 3 ACAD_FIELD 360 22 "
      "0 DICTIONARY 5 22 330 21 100 AcDbDictionary 3 TEXT 360 23 "
      "0 FIELD 5 23 330 22 100 AcDbField 1 _text 2 at~%<\\_FldIdx~0>% 90 1 360 24 97 0 91 63 92 0 94 9 95 2 "
      "93 1 6 ACFD_FIELDTEXT_CHECKSUM 90 2 140 350.0 7 ACFD_FIELD_VALUE 90 0 301 #### 98 4 "
      "0 FIELD 5 24 330 23 100 AcDbField 1 AcVar 3 \\AcVar~ 2 Filename 90 0 97 0 0 ENDSEC 0 EOF");
}

OdDbMTextPtr onlyText(OdDbDatabase& database) {
  return odOpen<OdDbMText>(odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities().at(0),
                           OdDb::kForWrite);
}

}  // namespace

TEST(Field, is_read_with_its_children_from_the_extension_dictionary) {
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(textWithField("####"), "field");
  const auto field = odCast<OdDbField>(onlyText(*database)->getField(u"TEXT"));
  ASSERT_TRUE(field);
  EXPECT_EQ(field->evaluatorId(), OdString(u"_text"));
  ASSERT_EQ(field->childCount(), 1);
  EXPECT_EQ(field->getChild(0)->getFieldCode(OdDbField::kFieldCode), OdString(u"\\AcVar Filename"));
  EXPECT_EQ(field->getFieldCode(OdDbField::kAddMarkers), OdString(u"at %<\\AcVar Filename>%"));
  EXPECT_EQ(field->getFieldCode(OdDbField::kEvaluatedText), OdString(u"####"));
}

TEST(Field, is_null_where_there_is_none) {
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(textWithField("####"), "field");
  EXPECT_FALSE(onlyText(*database)->getField(u"OTHER"));
  EXPECT_FALSE(odNew<OdDbMText>()->getField(u"TEXT"));
}

TEST(Field, is_stale_once_the_text_was_edited_without_it) {
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(textWithField("####"), "field");
  const OdDbMTextPtr text = onlyText(*database);
  text->setContents(u"plain");
  EXPECT_FALSE(text->getField(u"TEXT"));
  text->setContents(u"####");
  EXPECT_TRUE(text->getField(u"TEXT"));
}

TEST(Field, that_holds_itself_is_read_once) {
  std::string bytes = textWithField("####");
  const std::size_t at = bytes.find("\n97\n0\n0\nENDSEC");
  bytes.replace(at, 5, "\n360\n23\n97\n");
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(bytes, "field");
  const auto field = odCast<OdDbField>(onlyText(*database)->getField(u"TEXT"));
  ASSERT_TRUE(field);
  EXPECT_EQ(field->getChild(0)->childCount(), 1);
  EXPECT_EQ(field->getChild(0)->getChild(0)->childCount(), 0);
}

TEST(Field, of_a_drawing_of_another_program_names_the_file) {
  bool found = false;
  for (const auto& path : foreignDrawings()) {
    if (path.filename() != "r2013_mtext_paragraphs_stacks_fields.dxf") continue;
    found = true;
    int fields = 0;
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path);
    for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(database->getModelSpaceId())->entities()) {
      const auto text = odOpen<OdDbMText>(id);
      const auto field = text ? odCast<OdDbField>(text->getField(u"TEXT")) : OdDbFieldPtr();
      if (!field) continue;
      ++fields;
      EXPECT_EQ(field->getChild(0)->getFieldCode(OdDbField::kFieldCode),
                OdString(u"\\AcVar Filename \\f \"%fn6\""));
    }
    EXPECT_GT(fields, 0);
  }
  if (!found) std::cout << "no drawing with fields of another program here\n";
}

TEST(Field, that_shows_nothing_shows_four_dashes_so_that_it_is_not_lost_in_a_text) {
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(textWithField("####"), "field");
  const auto field = odCast<OdDbField>(onlyText(*database)->getField(u"TEXT"));
  EXPECT_EQ(field->getChild(0)->getFieldCode(OdDbField::kEvaluatedText), OdString(u"----"));
}
