#include "host/field_service.h"

#include <gtest/gtest.h>

#include "od/db/OdDbDatabase.h"

TEST(FieldService, there_is_none_unless_somebody_offers_one) {
  EXPECT_FALSE(host::field_service());
  HostGivenFields outer, inner;
  {
    const host::OfferingFields offer(outer);
    {
      const host::OfferingFields another(inner);
      EXPECT_EQ(host::field_service(), &inner);
    }
    EXPECT_EQ(host::field_service(), &outer);
  }
  EXPECT_FALSE(host::field_service());
}

TEST(FieldService, gives_the_fields_that_were_given_evaluated_with_or_without_markers) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  HostGivenFields fields;
  fields.give(u"\\AcVar LUNITS");
  fields.give(u"%<\\AcVar NoSuchThing>%");
  EXPECT_EQ(fields.insertField(nullptr, *database)->getFieldCode(OdDbField::kEvaluatedText), OdString(u"2"));
  const OdDbFieldPtr second = fields.changeField(OdDbField(), nullptr, *database);
  EXPECT_EQ(second->getFieldCode(OdDbField::kFieldCode), OdString(u"\\AcVar NoSuchThing"));
  EXPECT_EQ(second->getFieldCode(OdDbField::kEvaluatedText), OdString(u"####"));
}

TEST(FieldService, is_cancelled_by_an_empty_code_and_when_none_is_left) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  HostGivenFields fields;
  fields.give(u"");
  EXPECT_FALSE(fields.insertField(nullptr, *database));
  EXPECT_FALSE(fields.insertField(nullptr, *database));
}
