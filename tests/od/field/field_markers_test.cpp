#include "od/field/field_markers.h"

#include <gtest/gtest.h>

namespace {

/// The pieces of a code at its children: each text, with the number of the reference behind it.
std::string pieces(std::u16string_view code) {
  std::string shown;
  for (const auto& [text, reference] : odSplitAtReferences(code, u"\\_FldIdx")) {
    shown += '[' + std::string(text.begin(), text.end()) + ']';
    if (reference) shown += std::to_string(reference->number);
  }
  return shown;
}

}  // namespace

TEST(FieldMarkers, cut_a_code_at_its_references_of_one_name) {
  EXPECT_EQ(pieces(u"a%<\\_FldIdx 0>%bc%<\\_FldIdx 12>%%<\\_FldIdx 1>%d"), "[a]0[bc]12[]1[d]");
  EXPECT_EQ(pieces(u"%<\\_FldIdx 3>%"), "[]3[]");
  EXPECT_EQ(pieces(u"Object(%<\\_ObjId 3>%)"), "[Object(%<\\_ObjId 3>%)]");
  EXPECT_EQ(pieces(u""), "[]");
}

TEST(FieldMarkers, a_marker_without_a_readable_number_is_text) {
  EXPECT_EQ(pieces(u"%<\\_FldIdx x>%%<\\_FldIdx >%%<\\_FldIdx -1>%%<\\_FldIdx 1"),
            "[%<\\_FldIdx x>%%<\\_FldIdx >%%<\\_FldIdx -1>%%<\\_FldIdx 1]");
  EXPECT_EQ(pieces(u"%<\\_FldIdx %<\\_FldIdx 2>%"), "[%<\\_FldIdx ]2[]");
}

TEST(FieldMarkers, a_letter_whose_code_ends_like_that_of_a_digit_is_no_digit) {
  EXPECT_EQ(odSplitAtReferences(u"%<\\_FldIdx \u0131>%", u"\\_FldIdx").size(), 1U);
}

TEST(FieldMarkers, come_off_as_they_were_put_on) {
  EXPECT_EQ(odWithoutMarkers(odWithMarkers(u"\\AcVar Date")), u"\\AcVar Date");
  EXPECT_EQ(odWithoutMarkers(odWithMarkers(u"\\AcExpr %<a>%")), u"\\AcExpr %<a>%");
  EXPECT_EQ(odWithoutMarkers(odWithMarkers(u"")), u"");
}

TEST(FieldMarkers, stay_where_they_do_not_stand_at_both_ends) {
  for (const std::u16string_view code : {u"", u"date", u"%<date", u"date>%", u"a %<date>%", u"%<%", u"%<>"})
    EXPECT_EQ(odWithoutMarkers(code), code);
}
