#include "editor/drag_tip.h"

#include <gtest/gtest.h>

#include "host/translate.h"

namespace {

std::u16string tip(std::vector<mtext::drag_measure> measures, double text_height = 2.5) {
  return editing::drag_tip(measures, text_height);
}

}  // namespace

TEST(DragTip, tells_a_length_in_drawing_units_and_in_text_heights) {
  EXPECT_EQ(tip({{u"Width", 40}}), u"Width: 40 (16 text heights)");
}

TEST(DragTip, has_a_line_for_each_length) {
  EXPECT_EQ(tip({{u"Width", 25}, {u"Height", 5}}),
            u"Width: 25 (10 text heights)\nHeight: 5 (2 text heights)");
}

TEST(DragTip, rounds_to_a_thousandth_of_the_text_height_and_to_a_hundredth_of_the_heights) {
  EXPECT_EQ(tip({{u"Width", 10.0 / 3}}), u"Width: 3.333 (1.33 text heights)");
  EXPECT_EQ(tip({{u"Width", 0.0012346}}, 0.001), u"Width: 0.001235 (1.23 text heights)");
  EXPECT_EQ(tip({{u"Width", 1234567.8}}, 1e6), u"Width: 1234568 (1.23 text heights)");
}

TEST(DragTip, of_nothing_is_empty) { EXPECT_EQ(tip({}), u""); }

TEST(DragTip, speaks_the_language_of_its_user) {
  const TranslatedText words[] = {{u"Width", u"Breite"}, {u"text heights", u"Texthöhen"}};
  host::set_translations(words);
  EXPECT_EQ(tip({{u"Width", 5}}), u"Breite: 5 (2 Texthöhen)");
  host::set_translations({});
}
