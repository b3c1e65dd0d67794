#include <gtest/gtest.h>

#include "tests/mtext/labelled.h"

namespace mtext {
namespace {

/// The formats of a text after its first label was cleaned.
std::vector<format::string> cleaned(const std::u16string& codes) {
  geom_multitext text = labelled(codes);
  clean_numbering_format(text, *labels_of(text)[0]);
  std::vector<format::string> formats;
  for (const geom_part& each : text.parts) formats.push_back(each.part().format);
  return formats;
}

TEST(CleanNumberingFormat, takes_the_underline_from_the_label_and_its_tab_alone) {
  const auto formats = cleaned(u"{\\L\\O1.\tx}");
  EXPECT_EQ(formats[0].flags, format::flag_overline);
  EXPECT_EQ(formats[2].flags, format::flag_overline);
  EXPECT_EQ(formats[3].flags, format::flag_underline | format::flag_overline);
}

TEST(CleanNumberingFormat, puts_bullets_back_into_their_font_and_leaves_the_rest_of_the_format) {
  const auto formats = cleaned(u"{\\fArial|b1|i1|c204|p34;\\O\\C3;1.\u00b7\t\u00b7}");
  EXPECT_EQ(formats[0].font, u"Arial");
  EXPECT_EQ(formats[2].font, u"Symbol");
  EXPECT_EQ(formats[2].charset, 2u);
  EXPECT_EQ(formats[2].pitch, 18u);
  EXPECT_EQ(formats[2].flags, format::flag_overline);
  EXPECT_EQ(formats[2].color.index, 3);
  EXPECT_EQ(formats[4].font, u"Arial");
}

TEST(CleanNumberingFormat, of_a_shape_font_makes_a_bullet_a_typeface_again) {
  EXPECT_FALSE(cleaned(u"{\\Ftxt|c0;\u00b7\tx}")[0].is_shx);
}

TEST(CleanNumberingFormat, of_a_mark_beyond_the_text_throws_what_the_text_throws) {
  geom_multitext text = decoded(u"abc");
  marks::numbering label(1, 5, {{1, 0, 0}});
  EXPECT_THROW(clean_numbering_format(text, label), std::invalid_argument);
}

}  // namespace
}  // namespace mtext
