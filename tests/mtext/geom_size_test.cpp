#include <gtest/gtest.h>

#include <ctime>

#include "mtext/dispose.h"
#include "mtext/flatten.h"
#include "mtext/format_at.h"
#include "mtext/to_geom.h"
#include "tests/mtext/decoded.h"

/// Attacks by size on single steps: what grows with the square of the text would not end here. Those that go
/// from the string to the string stand in long_way_attacks_test.cpp.
namespace mtext {
namespace {

constexpr std::size_t million = 1'000'000;
constexpr double widths[] = {0, 1e-300, 1e300, -1, -1e300, 1000};

/// Seconds of the processor that `action` takes, whatever else the machine does.
template <class Action>
double seconds_of(Action action) {
  const std::clock_t begin = std::clock();
  action();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// Far above what linear work takes on a slow machine with sanitizers, far below what quadratic work takes.
constexpr double enough_seconds = 20;

/// `count` times `piece`, each measured by its own rule.
geom_multitext repeated(const part& piece, std::size_t count) {
  multitext text;
  for (std::size_t i = 0; i < count; ++i) text.parts.push_back(piece.clone());
  return to_geom(text, 10, stub_finder());
}

/// Lays `text` out at all widths; every part must be in a line.
void expect_layouts_to_end(geom_multitext& text) {
  for (double width : widths) {
    text.info = frame(width);
    const double seconds = seconds_of([&] { dispose(text); });
    EXPECT_LT(seconds, enough_seconds) << "width " << width;
    EXPECT_EQ(text.lines.back().last, text.parts.size()) << "width " << width;
  }
}

TEST(Size, a_million_words) {
  std::u16string typed;
  for (std::size_t i = 0; i < million / 2; ++i) typed += u"a ";
  geom_multitext text = to_geom(typed, {}, 10, stub_finder());
  expect_layouts_to_end(text);
}

TEST(Size, a_million_columns_attached_at_the_bottom) {
  geom_multitext text = repeated(new_paragraph({}, {}, true), million / 4);
  text.info.columns.kind = 2;
  text.info.vertical = 2;
  EXPECT_LT(seconds_of([&] { dispose(text); }), enough_seconds);
  EXPECT_EQ(text.columns.size(), million / 4 + 1);
}

TEST(Size, four_hundred_thousand_manual_columns) {
  geom_multitext text = repeated(new_paragraph({}, {}, true), 400'000);
  text.info.columns.kind = 1;
  text.info.columns.heights.assign(400'000, 5.0);
  EXPECT_LT(seconds_of([&] { dispose(text); }), enough_seconds);
  EXPECT_EQ(text.columns.size(), 400'001u);
}

TEST(Size, a_hundred_thousand_stops_for_a_hundred_thousand_tabs) {
  geom_multitext text = repeated(tab({}), 100'000);
  for (int i = 100'000; i > 0; --i) text.format.tabs.edit().push_back({i * 0.5, 0, u' '});
  expect_layouts_to_end(text);
}

TEST(Size, a_million_tabs_without_stops) {
  geom_multitext text = repeated(tab({}), million);
  expect_layouts_to_end(text);
}

TEST(Size, a_hundred_thousand_fields_come_back) {
  geom_multitext text = repeated(field({}, u"code"), 100'000);
  ASSERT_EQ(text.parts.size(), 400'000u);
  multitext flat;
  EXPECT_LT(seconds_of([&] { flat = flatten(text); }), enough_seconds);
  EXPECT_EQ(flat.parts.size(), 100'000u);
}

TEST(Size, a_format_over_a_hundred_thousand_labels) {
  geom_multitext text = to_geom(std::u16string(400'000, u'a'), {}, 10, stub_finder());
  for (std::size_t i = 0; i < 100'000; ++i)
    text.marks.push_back(new marks::numbering(4 * i, 4 * i + 3, {{1, 0, 0}}));
  const marks::mark all(0, text.parts.size());
  EXPECT_LT(seconds_of([&] { format::current_format(text, {}, all); }), enough_seconds);
}

TEST(Size, a_hundred_thousand_carets_slide_out_of_a_hundred_thousand_fields) {
  marks::mark_list list;
  for (std::size_t i = 0; i < 100'000; ++i) {
    list.push_back(new marks::field(4 * i, 4 * i + 3, u"code"));
    list.push_back(new marks::selection(4 * i + 1));
  }
  EXPECT_LT(seconds_of([&] { marks::slide_selections(list); }), enough_seconds);
  EXPECT_LT(seconds_of([&] { marks::merge_selections(list); }), enough_seconds);
  EXPECT_EQ(marks::selections_of(list).size(), 100'000u);
}

TEST(Size, a_text_appended_character_by_character) {
  geom_multitext text;
  const double seconds = seconds_of([&] {
    for (std::size_t i = 0; i < million / 4; ++i) text.append(to_geom(u'a', {}, 10, stub_finder()));
  });
  EXPECT_LT(seconds, enough_seconds);
  EXPECT_EQ(text.parts.size(), million / 4);
}

TEST(Size, copies_erases_and_slices_of_a_million_parts) {
  geom_multitext text = to_geom(std::u16string(million, u'a'), {}, 10, stub_finder());
  const double seconds = seconds_of([&] {
    geom_multitext copy(text);
    copy.erase(1, million - 2, true);
    EXPECT_EQ(copy.parts.size(), 2u);
    text.insert(million / 2, text.slice(million / 4, million / 4));
    text.keep(10, million);
  });
  EXPECT_LT(seconds, enough_seconds);
  EXPECT_EQ(text.parts.size(), million);
}

}  // namespace
}  // namespace mtext
