#include "od/evaluate/evaluate_field.h"

#include <gtest/gtest.h>

#include "tests/od/evaluate/invented_source.h"

namespace {

std::string shown(std::u16string_view code, const invented_source& source) {
  const OdDbFieldPtr field = OdDbField::createFromCode(code);
  odEvaluateField(field, OdDbField::kAutomatic, source);
  return field->getFieldCode(OdDbField::kEvaluatedText).toUtf8();
}

invented_source drawing() {
  invented_source source;
  source.variables[u"Date"] = OdFieldDate{2020, 4, 2, 21, 16, 45, 39, 0};
  source.variables[u"Author"] = OdString(u"");
  source.variables[u"DIMSCALE"] = 2.0;
  source.properties[{171, u"Length"}] = 12.5;
  source.properties[{171, u"Layer"}] = OdString(u"walls");
  return source;
}

}  // namespace

TEST(EvaluateField, shows_a_variable_in_the_format_of_the_code) {
  EXPECT_EQ(shown(u"\\AcVar Date \\f \"dd/MM/yyyy\"", drawing()), "21/04/2020");
  EXPECT_EQ(shown(u"\\AcVar.17.0 Date \\f \"H\"", drawing()), "16");
}

TEST(EvaluateField, shows_a_property_of_an_object) {
  EXPECT_EQ(shown(u"\\AcObjProp Object(%<\\_ObjId 171>%).Length \\f \"%lu2%pr1\"", drawing()), "12.5");
  EXPECT_EQ(shown(u"\\AcObjProp.16.2 Object(%<\\_ObjId 171>%,1).Layer \\f \"%tc1\"", drawing()), "WALLS");
}

TEST(EvaluateField, works_out_expressions_of_other_fields) {
  EXPECT_EQ(shown(u"\\AcExpr (%<\\AcObjProp Object(%<\\_ObjId 171>%).Length \\f \"%lu2%pr0\">% * %<\\AcVar "
                  u"DIMSCALE>%) \\f "
                  u"\"%lu2%pr2\"",
                  drawing()),
            "25.00");
}

TEST(EvaluateField, that_cannot_be_evaluated_shows_four_hashes_and_keeps_its_code) {
  for (const auto* code :
       {u"\\AcVar NoSuchThing", u"\\AcObjProp Object(%<\\_ObjId 9>%).Length", u"\\AcObjProp Object(7).Area",
        u"\\AcObjProp", u"\\AcExpr 1/0", u"\\AcExpr (%<\\AcVar NoSuchThing>% + 1)", u"", u"no code"}) {
    const OdDbFieldPtr field = OdDbField::createFromCode(code);
    odEvaluateField(field, OdDbField::kAutomatic, drawing());
    EXPECT_EQ(field->getFieldCode(OdDbField::kEvaluatedText), OdString(u"####")) << odToUtf8(code);
    EXPECT_EQ(field->getFieldCode(OdDbField::kAddMarkers), OdString(std::u16string(u"%<") + code + u">%"));
  }
}

TEST(EvaluateField, an_empty_value_shows_four_dashes) {
  EXPECT_EQ(shown(u"\\AcVar Author", drawing()), "----");
}

TEST(EvaluateField, of_another_program_shows_what_that_program_found) {
  const OdDbFieldPtr field = OdDbField::createFromCode(u"\\AcDiesel $(getvar,dwgname)");
  field->setEvaluation({}, u"plan.dxf", OdDbField::kSuccess);
  odEvaluateField(field, OdDbField::kAutomatic, drawing());
  EXPECT_EQ(field->getFieldCode(OdDbField::kEvaluatedText), OdString(u"plan.dxf"));
  EXPECT_EQ(shown(u"\\AcDiesel $(getvar,dwgname)", drawing()), "####");
}

TEST(EvaluateField, leaves_alone_what_is_not_to_be_evaluated_now) {
  const OdDbFieldPtr field = OdDbField::createFromCode(u"\\AcVar Date \\f \"yyyy\"");
  field->setEvaluationOption(OdDbField::kOnDemand);
  odEvaluateField(field, OdDbField::kOnOpen | OdDbField::kOnSave, drawing());
  EXPECT_EQ(field->getFieldCode(OdDbField::kEvaluatedText), OdString(u"----"));
  odEvaluateField(field, OdDbField::kOnDemand, drawing());
  EXPECT_EQ(field->getFieldCode(OdDbField::kEvaluatedText), OdString(u"2020"));
}

TEST(EvaluateField, a_container_shows_its_children_in_its_text) {
  auto container = odNew<OdDbField>();
  container->setFieldCode(u"In %<\\_FldIdx 0>%, %<\\_FldIdx 4>%%<\\_FldIdx 0>%", OdDbField::kTextField,
                          {OdDbField::createFromCode(u"\\AcVar Date \\f \"yyyy\"")});
  odEvaluateField(container, OdDbField::kAutomatic, drawing());
  EXPECT_EQ(container->getFieldCode(OdDbField::kEvaluatedText), OdString(u"In 2020, 2020"));
}

TEST(EvaluateField, a_hundred_thousand_fields_in_each_other_cost_no_stack) {
  std::u16string code;
  for (int i = 0; i < 100'000; ++i) code += u"%<\\AcExpr 1+";
  code += u"1";
  for (int i = 0; i < 100'000; ++i) code += u">%";
  EXPECT_EQ(shown(u"\\AcExpr " + code, drawing()), "100001.0000");
}

TEST(EvaluateField, a_long_text_that_stands_in_a_container_very_often_does_not_fill_the_memory) {
  auto child = OdDbField::createFromCode(u"\\AcDiesel x");
  child->setEvaluation({}, std::u16string(1'000'000, u'x'), OdDbField::kSuccess);
  std::u16string code;
  for (int i = 0; i < 100'000; ++i) code += u"%<\\_FldIdx 0>%";
  auto container = odNew<OdDbField>();
  container->setFieldCode(code, OdDbField::kTextField, {child});
  EXPECT_LT(odContainerText(*container).size(), 10'000'000U);
}
