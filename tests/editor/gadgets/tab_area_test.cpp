#include "editor/gadgets/tab_area.h"

#include <gtest/gtest.h>

#include "editor/gadgets/tabulation.h"
#include "micui/hit_path.h"
#include "micui/resizer.h"

namespace {

/// A strip of 40 by 10 with a tick each 2.5, laid out.
OdSmartPtr<mtext::tab_area> strip(std::vector<mtext::format::tab_stop> tabs,
                                  const mtext::format::paragraph* paragraph = nullptr) {
  const auto made = odNew<mtext::tab_area>();
  made->create_children();
  made->width = 40;
  made->height = 10;
  made->scale = 0.5;
  made->unit = 2.5;
  made->tabs = std::move(tabs);
  made->paragraph = paragraph;
  made->layout();
  return made;
}

std::vector<micui::control_ptr> named(const micui::control& parent, std::u16string_view name) {
  std::vector<micui::control_ptr> found;
  for (const auto& each : parent.children)
    if (each->name == name) found.push_back(each);
  return found;
}

}  // namespace

TEST(TabArea, has_a_long_tick_at_each_fourth_place_and_none_at_0) {
  const auto ticks = named(*strip({}), u"notch");
  ASSERT_EQ(ticks.size(), 16u);
  EXPECT_EQ(ticks[0]->x, 2.375);
  EXPECT_EQ(ticks[0]->height, 3.5);
  EXPECT_EQ(ticks[3]->height, 7);
  EXPECT_EQ(ticks[15]->x, 39.875) << "the one on the very edge is there";
}

TEST(TabArea, leaves_out_ticks_that_nobody_could_tell_apart) {
  const auto fine = strip({});
  fine->unit = 1e-9;
  fine->layout();
  EXPECT_TRUE(named(*fine, u"notch").empty());
  fine->unit = 0;
  fine->layout();
  EXPECT_TRUE(named(*fine, u"notch").empty());
}

TEST(TabArea, shows_stops_in_ticks_whatever_the_paragraph_measures_in) {
  mtext::format::paragraph paragraph;
  paragraph.relative = false;
  const auto stops = named(*strip({{.position = 4, .kind = 1, .decimal_char = u' '}}, &paragraph), u"tab");
  ASSERT_EQ(stops.size(), 1u);
  EXPECT_EQ(stops[0]->x, 10 - 3.5);
  EXPECT_EQ(dynamic_cast<const mtext::tabulation&>(*stops[0]).kind, 1u);
}

TEST(TabArea, shows_the_indents_of_a_paragraph_that_is_not_relative_by_its_drawing_units) {
  mtext::format::paragraph paragraph;
  paragraph.left = 4;
  paragraph.indent = 2;
  paragraph.right = 1;
  EXPECT_EQ(strip({}, &paragraph)->find(u"left-indent")->x, 10);
  EXPECT_EQ(strip({}, &paragraph)->find(u"indent")->x, 15 - 2);
  EXPECT_EQ(strip({}, &paragraph)->find(u"right-indent")->x, 40 - 2.5 - 2.5);
  paragraph.relative = false;
  EXPECT_EQ(strip({}, &paragraph)->find(u"left-indent")->x, 4);
  EXPECT_EQ(strip({}, &paragraph)->find(u"indent")->x, 6 - 2);
  EXPECT_EQ(strip({}, &paragraph)->find(u"right-indent")->x, 40 - 1 - 2.5);
}

TEST(TabArea, without_a_paragraph_has_no_handles) {
  EXPECT_TRUE(strip({})->find(u"indent").isNull());
  EXPECT_TRUE(strip({})->find(u"left-indent").isNull());
  EXPECT_TRUE(strip({})->find(u"right-indent").isNull());
}

TEST(TabArea, handles_stand_above_the_stops_and_are_dragged_sideways) {
  mtext::format::paragraph paragraph;
  const auto made = strip({{.position = 0, .kind = 0, .decimal_char = u' '}}, &paragraph);
  const auto path = micui::hit_path(*made, {1, 2});
  ASSERT_EQ(path.back()->name, u"left-indent");
  EXPECT_EQ(dynamic_cast<const mtext::resizer&>(*path.back()).cursor, mtext::resizer::kWestEast);
}

TEST(Tabulation, shifts_its_foot_by_kind_and_places_the_point_for_a_decimal_stop_alone) {
  const auto glyph = odNew<mtext::tabulation>();
  glyph->create_children();
  glyph->width = glyph->height = 10;
  const double foot_at[] = {5, 2, -1, 2};
  for (std::uint32_t kind = 0; kind < 4; ++kind) {
    EXPECT_EQ(glyph->find(u"dash")->width, 0) << "before kind " << kind;
    glyph->kind = kind;
    glyph->layout();
    EXPECT_EQ(glyph->find(u"hor")->x, foot_at[kind]) << "kind " << kind;
  }
  EXPECT_EQ(glyph->find(u"dash")->x, 6);
  glyph->kind = 0;
  glyph->layout();
  EXPECT_EQ(glyph->find(u"dash")->x, 6) << "what was placed once keeps its place";
}
