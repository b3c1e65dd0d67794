#include "editor/gadgets/drag_measures.h"

#include <gtest/gtest.h>

#include "micui/frame.h"
#include "micui/hit_path.h"
#include "od/base/unicode.h"
#include "tests/editor/gadgets/laid_out.h"

namespace {

/// The lengths that a drag of the gadget at this name shows.
std::string dragged(const laid_out& text, std::u16string_view name, const mtext::tab_drag* tab = nullptr,
                    const mtext::indent_drag* indent = nullptr) {
  std::string found;
  for (const auto& each : mtext::drag_measures(*text.root, micui::path_to(*text.root, name), tab, indent)) {
    char length[32];
    std::snprintf(length, sizeof length, " %g;", each.length);
    found += odToUtf8(each.name) + length;
  }
  return found;
}

}  // namespace

TEST(DragMeasures, of_the_width_sizer_are_the_whole_width_and_between_columns_the_gutter) {
  EXPECT_EQ(dragged(laid_out(1, fixed_columns(1, 40, 2, 7), 5), u"width sizer"), "Width 40;");
  EXPECT_EQ(dragged(laid_out(2, fixed_columns(2, 10, 2, 7), 5), u"width sizer"), "Width 22;Gutter 2;");
}

TEST(DragMeasures, of_the_dot_are_the_width_of_a_column) {
  EXPECT_EQ(dragged(laid_out(2, fixed_columns(2, 10, 2, 7), 5), u"dot"), "Column width 10;");
}

TEST(DragMeasures, of_a_column_s_handles_are_its_own_sizes_where_heights_are_manual) {
  const laid_out two(2, {.width = 10, .gutter = 2, .kind = 1, .heights = {7, 4}}, 3);
  const auto columns = two.named(u"column");
  const auto second = [&](std::u16string_view name) {
    micui::control_path path = micui::path_to(*columns[1], name);
    path.insert(path.begin(), two.root);
    return mtext::drag_measures(*two.root, path, nullptr, nullptr);
  };
  EXPECT_EQ(second(u"height sizer").at(0).length, 4);
  EXPECT_EQ(second(u"height edge").at(0).length, 4);
  ASSERT_EQ(second(u"sizer").size(), 2u);
  EXPECT_EQ(second(u"sizer")[0].length, 10);
  EXPECT_EQ(second(u"sizer")[1].length, 4);
}

TEST(DragMeasures, of_a_manual_column_that_has_no_height_yet_are_0) {
  const laid_out two(2, {.width = 10, .gutter = 2, .kind = 1, .heights = {7}}, 3);
  micui::control_path path = micui::path_to(*two.named(u"column")[1], u"height sizer");
  EXPECT_EQ(mtext::drag_measures(*two.root, path, nullptr, nullptr).at(0).length, 0);
}

TEST(DragMeasures, of_a_stop_are_its_place) {
  const laid_out one(1, fixed_columns(1, 40, 2, 7), 5);
  const mtext::tab_drag drag{.stop = {.position = 4, .kind = 0, .decimal_char = u' '}, .paragraphs = {}};
  EXPECT_EQ(dragged(one, u"tab area", &drag), "Tab stop 10;");
  EXPECT_EQ(dragged(one, u"tab area"), "");
}

TEST(DragMeasures, of_the_indents_are_those_of_the_first_paragraph) {
  laid_out one(1, fixed_columns(1, 40, 2, 7), 5);
  one.text.marks.push_back(new mtext::marks::selection(0));
  mtext::format::paragraph paragraph;
  paragraph.left = 3;
  paragraph.indent = -1;
  paragraph.right = 2;
  const mtext::indent_drag drag{.grab = 0, .paragraphs = {&paragraph}, .guide_stop = {}};
  const auto of = [&](std::u16string_view name) {
    const auto handle = odNew<micui::frame>();
    handle->name = name;
    const auto found = mtext::drag_measures(*one.root, {one.root, handle}, nullptr, &drag);
    return odToUtf8(found.at(0).name) + " " + std::to_string(found[0].length);
  };
  EXPECT_EQ(of(u"indent"), "First line 5.000000");
  EXPECT_EQ(of(u"left-indent"), "Left indent 7.500000");
  EXPECT_EQ(of(u"right-indent"), "Right indent 5.000000");
  paragraph.relative = false;
  EXPECT_EQ(of(u"left-indent"), "Left indent 3.000000");
}

TEST(DragMeasures, of_what_has_no_length_are_none) {
  const laid_out one(1, fixed_columns(1, 40, 2, 7), 5);
  EXPECT_EQ(dragged(one, u"ruler"), "");
  EXPECT_EQ(dragged(one, u"border"), "");
}
