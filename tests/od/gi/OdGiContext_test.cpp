#include "od/gi/OdGiContext.h"

#include <gtest/gtest.h>

#include "od/gi/OdGiTextStyle.h"
#include "tests/od/gi/test_fonts.h"

namespace {

struct Box {
  OdGePoint3d minimum{}, maximum{}, end{};
  friend bool operator==(const Box&, const Box&) = default;
};

OdGiTextStyle loaded(const OdString& file, double height) {
  static const TestFonts fonts;
  OdGiTextStyle style;
  if (file == u"Liberation Sans")
    style.setFont(file, false, false, 0, 34);
  else
    style.setFileName(file);
  style.setTextSize(height);
  style.loadStyleRec(fonts);
  return style;
}

Box measure(const OdGiTextStyle& style, const char16_t* text, unsigned flags = 0, int length = -1) {
  Box box;
  OdGiDefaultContext().textExtentsBox(style, text, length, flags, box.minimum, box.maximum, box.end);
  return box;
}

class RedLayers : public OdGiDefaultContext {
 public:
  OdCmEntityColor layerColor(const OdString&) const override { return OdCmEntityColor::fromIndex(1); }
};

}  // namespace

TEST(TextExtentsBox, gives_the_ink_and_the_end_of_the_pen) {
  OdGiTextStyle style = loaded(u"Liberation Sans", 1409);
  EXPECT_EQ(measure(style, u"H"), (Box{{168, 0, 0}, {1312, 1409, 0}, {1479, 0, 0}}));
}

TEST(TextExtentsBox, reaches_below_the_baseline_where_the_ink_does) {
  Box box = measure(loaded(u"Liberation Sans", 1409), u"g");
  EXPECT_EQ(box.minimum.y, -425);
  EXPECT_EQ(box.end.y, 0);
}

TEST(TextExtentsBox, of_a_blank_has_no_ink_and_an_advance) {
  EXPECT_EQ(measure(loaded(u"Liberation Sans", 1409), u" "), (Box{{}, {}, {569, 0, 0}}));
}

TEST(TextExtentsBox, of_nothing_is_all_zero) { EXPECT_EQ(measure(loaded(u"box.lff", 9), u""), Box{}); }

TEST(TextExtentsBox, of_a_height_of_0_is_all_zero) { EXPECT_EQ(measure(loaded(u"box.lff", 0), u"A"), Box{}); }

TEST(TextExtentsBox, counts_units_or_goes_on_to_the_zero_unit) {
  OdGiTextStyle style = loaded(u"box.lff", 9);
  EXPECT_EQ(measure(style, u"AAI", 0, 1).end.x, 9);
  EXPECT_EQ(measure(style, u"AAI", 0, -1).end.x, 21);
}

TEST(TextExtentsBox, adds_up_the_advances_of_single_characters) {
  OdGiTextStyle style = loaded(u"Liberation Sans", 2.5);
  double sum = measure(style, u"A").end.x + measure(style, u"V").end.x;
  EXPECT_DOUBLE_EQ(measure(style, u"AV").end.x, sum) << "there is no kerning";
}

TEST(TextExtentsBox, multiplies_widths_by_the_width_factor) {
  OdGiTextStyle style = loaded(u"box.lff", 9);
  style.setXScale(0.5);
  EXPECT_EQ(measure(style, u"A"), (Box{{0, 0, 0}, {3, 9, 0}, {4.5, 0, 0}}));
}

TEST(TextExtentsBox, reads_percent_sequences_unless_told_that_the_text_is_raw) {
  OdGiTextStyle style = loaded(u"box.lff", 9);
  EXPECT_EQ(measure(style, u"%%d").end.x, 6);
  EXPECT_GT(measure(style, u"%%d", kOdGiRawText).end.x, 6);
}

TEST(TextExtentsBox, counts_underlines_as_ink_when_asked) {
  OdGiTextStyle style = loaded(u"box.lff", 10);
  EXPECT_EQ(measure(style, u"%%uI").minimum.y, 0);
  EXPECT_EQ(measure(style, u"%%uI", kOdGiIncludeScores).minimum.y, -2);
}

TEST(OdGiContext, shows_by_layer_in_the_layer_s_colour_and_others_as_they_are) {
  RedLayers context;
  EXPECT_EQ(context.shownColor(OdCmEntityColor(), u"any").colorIndex(), 1);
  EXPECT_EQ(context.shownColor(OdCmEntityColor::fromIndex(5), u"any").colorIndex(), 5);
  EXPECT_EQ(context.shownColor(OdCmEntityColor::fromIndex(0), u"any").colorIndex(), 7);
  EXPECT_EQ(context.shownColor(OdCmEntityColor(1, 2, 3), u"any"), OdCmEntityColor(1, 2, 3));
}
