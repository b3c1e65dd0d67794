#include "od/field/OdDbField.h"

#include <gtest/gtest.h>

namespace {

OdDbFieldPtr containerWithDate() {
  OdDbFieldPtr date = odNew<OdDbField>(u"AcVar", u"\\AcVar Date");
  date->setEvaluatedText(u"21/04/2020");
  OdDbFieldPtr container = odNew<OdDbField>(u"_text", u"Printed %<\\_FldIdx 0>%, sheet %<\\_FldIdx 7>%");
  container->addChild(date);
  return container;
}

}  // namespace

TEST(OdDbField, gives_its_code_bare_and_with_markers) {
  OdDbField field(u"AcVar", u"\\AcVar Date");

  EXPECT_EQ(field.getFieldCode(OdDbField::kFieldCode), OdString(u"\\AcVar Date"));
  EXPECT_EQ(field.getFieldCode(OdDbField::kAddMarkers), OdString(u"%<\\AcVar Date>%"));
}

TEST(OdDbField, gives_the_text_of_its_last_evaluation) {
  EXPECT_EQ(containerWithDate()->getChild(0)->getFieldCode(OdDbField::kEvaluatedText),
            OdString(u"21/04/2020"));
}

TEST(OdDbField, a_container_shows_its_childrens_codes_and_leaves_unknown_indices_alone) {
  EXPECT_EQ(containerWithDate()->getFieldCode(OdDbField::kAddMarkers),
            OdString(u"Printed %<\\AcVar Date>%, sheet %<\\_FldIdx 7>%"));
}

TEST(OdDbField, a_child_index_outside_throws) {
  EXPECT_EQ(containerWithDate()->childCount(), 1);
  EXPECT_THROW(containerWithDate()->getChild(1), OdError_InvalidIndex);
  EXPECT_THROW(containerWithDate()->getChild(-1), OdError_InvalidIndex);
}
