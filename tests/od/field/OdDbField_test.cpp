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

TEST(OdDbField, a_hundred_thousand_containers_in_each_other_cost_no_stack) {
  OdDbFieldPtr outer = odNew<OdDbField>(u"AcVar", u"\\AcVar Date");
  for (int depth = 0; depth < 100'000; ++depth) {
    OdDbFieldPtr container = odNew<OdDbField>(u"_text", u"%<\\_FldIdx 0>%.");
    container->addChild(outer);
    outer = container;
  }

  const OdString code = outer->getFieldCode(OdDbField::kAddMarkers);

  EXPECT_TRUE(code.str().starts_with(u"%<\\AcVar Date>%."));
  EXPECT_TRUE(code.str().ends_with(u"..."));
}

TEST(OdDbField, containers_that_name_their_child_ten_times_each_leave_markers_standing_in_the_end) {
  OdDbFieldPtr outer = odNew<OdDbField>(u"AcVar", u"\\AcVar Date");
  for (int depth = 0; depth < 40; ++depth) {
    std::u16string tenTimes;
    for (int i = 0; i < 10; ++i) tenTimes += u"%<\\_FldIdx 0>%";
    OdDbFieldPtr container = odNew<OdDbField>(u"_text", tenTimes);
    container->addChild(outer);
    outer = container;
  }

  const OdString code = outer->getFieldCode(OdDbField::kAddMarkers);

  EXPECT_NE(code.str().find(u"%<\\_FldIdx 0>%"), std::u16string::npos);
  EXPECT_LT(code.str().size(), 5'000'000u);
}

TEST(OdDbField, is_made_from_its_code_with_the_fields_within_it_as_children) {
  const OdDbFieldPtr field =
      OdDbField::createFromCode(u"\\AcExpr (%<\\AcVar A>% + %<\\AcObjProp Object(%<\\_ObjId 18>%).Area>%)");
  EXPECT_EQ(field->evaluatorId(), OdString(u"AcExpr"));
  EXPECT_EQ(field->getFieldCode(OdDbField::kFieldCode),
            OdString(u"\\AcExpr (%<\\_FldIdx 0>% + %<\\_FldIdx 1>%)"));
  ASSERT_EQ(field->childCount(), 2);
  EXPECT_EQ(field->getChild(1)->getFieldCode(OdDbField::kFieldCode),
            OdString(u"\\AcObjProp Object(%<\\_ObjId 18>%).Area"));
  EXPECT_EQ(field->getFieldCode(OdDbField::kAddMarkers),
            OdString(u"%<\\AcExpr (%<\\AcVar A>% + %<\\AcObjProp Object(%<\\_ObjId 18>%).Area>%)>%"));
}

TEST(OdDbField, whose_markers_do_not_pair_is_one_field_of_all_its_code) {
  for (const auto* code : {u"\\AcExpr %<a", u"\\AcExpr a>%", u"\\AcExpr %<a>%>%", u">%%<"}) {
    const OdDbFieldPtr field = OdDbField::createFromCode(code);
    EXPECT_EQ(field->getFieldCode(OdDbField::kFieldCode), OdString(code));
    EXPECT_EQ(field->childCount(), 0);
  }
}

TEST(OdDbField, that_nobody_evaluated_shows_four_dashes) {
  EXPECT_EQ(OdDbField::createFromCode(u"\\AcVar Date")->getFieldCode(OdDbField::kEvaluatedText),
            OdString(u"----"));
}

TEST(OdDbField, a_hundred_thousand_references_without_an_end_are_read_in_one_go) {
  std::u16string code;
  for (int i = 0; i < 100'000; ++i) code += u"%<\\_FldIdx ";
  code += u">%";
  OdDbFieldPtr container = odNew<OdDbField>();
  container->setFieldCode(code, OdDbField::kTextField);
  EXPECT_EQ(container->getFieldCode(OdDbField::kAddMarkers), OdString(code));
}

TEST(OdDbField, has_no_child_where_a_reference_names_none) {
  const OdDbFieldPtr field = OdDbField::createFromCode(u"\\AcExpr %<\\AcVar A>%");
  EXPECT_EQ(field->childOrNull(0), field->getChild(0));
  EXPECT_FALSE(field->childOrNull(1));
  EXPECT_FALSE(field->childOrNull(std::uint64_t{1} << 32));
}
