#include <gtest/gtest.h>

#include "editor/background.h"
#include "editor/selection_scope.h"
#include "tests/editor/edited_text.h"
#include "tests/editor/expected_gadgets.h"

// What a session draws, in all nine attachments and with all kinds of columns.

namespace {

constexpr double kPixel = 0.1;

struct columns_case {
  const char* name;
  mtext::column_settings columns;
};

const columns_case kColumns[] = {
    {"without_columns", {.width = 20, .gutter = 4, .kind = 0, .heights = {15}}},
    {"with_static_columns", {.width = 20, .gutter = 4, .kind = 0, .heights = {15, 15, 15}}},
    {"with_columns_of_manual_height", {.width = 20, .gutter = 4, .kind = 1, .heights = {15, 4}}},
    {"with_columns_of_automatic_height", {.width = 20, .gutter = 4, .kind = 2, .heights = {15}}},
};

/// A selection of two letters, a caret, a field, indents and a tab stop in the first paragraph, and more text
/// in the next column.
constexpr const char16_t* kCodes = u"\\pi1,l2,r1,t4;abc %<F>%\\Pgh\\Pij\\Pkl";

class SessionPicture : public testing::TestWithParam<std::tuple<int, int>> {
 protected:
  SessionPicture() : m_text(edited_text::on_codes(kCodes, info())) {
    set_pixel(view(), kPixel);
    text().setSelections({mtext::marks::selection(0, 2), mtext::marks::selection(9)});
    text().setAttachment(std::get<0>(GetParam()));
    text().endOfEdit(/*relayout=*/true);
    m_text.session().openGadgets();
  }

  static mtext::convert_info info() {
    mtext::convert_info wanted;
    wanted.columns = kColumns[std::get<1>(GetParam())].columns;
    return wanted;
  }
  ExMTextEditable& text() { return m_text.text(); }
  const mtext::geom_multitext& laid_out() { return text().text(); }
  OdGsView& view() { return m_text.application().document().view().gsView(); }
  const session_layers& layers() { return m_text.session().layers(); }
  std::vector<drawn_shape> shapes(gadget_draw& layer) { return shapes_of(m_text.session(), layer, view()); }

  edited_text m_text;
};

/// The box of the parts from `first` up to `last`, all in one row.
drawn_shape box_of_parts(const mtext::geom_multitext& text, std::size_t first, std::size_t last,
                         std::string look) {
  const mtext::geom_part &begin = text.parts[first], &end = text.parts[last - 1];
  return {std::move(look), begin.x, begin.y - begin.size.below, end.x + end.size.advance,
          end.y + end.size.above};
}

std::string case_name(const testing::TestParamInfo<std::tuple<int, int>>& info) {
  static constexpr const char* kPlaces[] = {"top_left",    "top_centre",    "top_right",
                                            "middle_left", "middle",        "middle_right",
                                            "bottom_left", "bottom_centre", "bottom_right"};
  return std::string(kPlaces[std::get<0>(info.param)]) + "_" + kColumns[std::get<1>(info.param)].name;
}

}  // namespace

TEST_P(SessionPicture, shows_ruler_and_handles_and_above_them_the_selection_and_the_field) {
  std::vector<drawn_shape> expected = expected_gadgets(laid_out(), kPixel).shapes();
  expected.push_back(box_of_parts(laid_out(), 0, 2, "fill 0,100,200 alpha 120"));
  expected.push_back(box_of_parts(laid_out(), 4, 8, "fill 255,255,255 alpha 120"));
  const std::vector<drawn_shape> drawn = shapes(layers().gadgets());
  for (std::size_t i = 0; i < std::min(drawn.size(), expected.size()); ++i)
    EXPECT_EQ(drawn[i], expected[i]) << "shape " << i;
  EXPECT_EQ(drawn.size(), expected.size());
}

TEST_P(SessionPicture, fills_each_column_that_has_text_below_its_letters) {
  const std::vector<drawn_shape> drawn = shapes(layers().text());
  const std::string tint = "fill 25,25,25";
  std::vector<drawn_shape> filled;
  for (const auto& column : laid_out().columns)
    if (column.first != column.last) filled.push_back(drawn.at(filled.size()));
  ASSERT_GE(filled.size(), std::get<1>(GetParam()) == 0 ? 1U : 2U);
  for (const drawn_shape& each : filled) EXPECT_EQ(each.look, tint);
  ASSERT_GT(drawn.size(), filled.size());
  for (std::size_t i = filled.size(); i < drawn.size(); ++i) {
    EXPECT_NE(drawn[i].look, tint);
    const bool is_within = std::any_of(filled.begin(), filled.end(), [&](const drawn_shape& each) {
      return drawn[i].left >= each.left && drawn[i].right <= each.right && drawn[i].bottom >= each.bottom &&
             drawn[i].top <= each.top;
    });
    EXPECT_TRUE(is_within) << drawn[i];
  }
}

TEST_P(SessionPicture, shows_the_caret_alone_as_an_i_beam_in_the_foreground) {
  OdGePoint2d top, bottom;
  text().caretPoints(text().selections()[1], top, bottom);
  const double bar = 0.1 * top.distanceTo(bottom);
  const drawn_shape expected[] = {{"line color 7", top.x - bar, top.y, top.x + bar, top.y},
                                  {"line color 7", top.x, bottom.y, top.x, top.y},
                                  {"line color 7", bottom.x - bar, bottom.y, bottom.x + bar, bottom.y}};
  const std::vector<drawn_shape> drawn = shapes(layers().caret());
  ASSERT_EQ(drawn.size(), 3U);
  for (std::size_t i = 0; i < drawn.size(); ++i) EXPECT_EQ(drawn[i], expected[i]);
}

INSTANTIATE_TEST_SUITE_P(Every, SessionPicture, testing::Combine(testing::Range(0, 9), testing::Range(0, 4)),
                         case_name);
