#include "tests/editor/expected_gadgets.h"

#include <algorithm>

namespace {

constexpr const char* kHandleFill = "fill 64,64,64";
constexpr const char* kHandleLine = "line 128,128,128";

}  // namespace

expected_gadgets::expected_gadgets(const mtext::geom_multitext& text, double pixel)
    : m_text(text), m_pixel(pixel) {
  const auto& columns = text.info.columns;
  m_count = columns.kind == 0 ? columns.heights.size() : text.columns.size();
  m_height = *std::max_element(columns.heights.begin(), columns.heights.end());
  m_total = (columns.width + columns.gutter) * static_cast<double>(m_count) - columns.gutter;
}

double expected_gadgets::strip_base() const { return hangs_up() ? -m_height - pixels(24) : pixels(4); }

void expected_gadgets::add(std::string look, double x, double y, double width, double height) {
  m_shapes.push_back({std::move(look), std::min(x, x + width), std::min(y, y + height),
                      std::max(x, x + width), std::max(y, y + height)});
}

void expected_gadgets::add_filled(std::string fill, std::string line, double x, double y, double width,
                                  double height) {
  add(std::move(fill), x, y, width, height);
  add(std::move(line), x, y, width, height);
}

void expected_gadgets::ruler() {
  const double p = m_pixel;
  add_filled("fill 149,164,191", "line 96,96,96", (is_right() ? -10 : -20) * p,
             hangs_up() ? -m_height - 30 * p : 4 * p, m_total + 40 * p, 24 * p);
  const double sign = is_right() ? m_total + 12 * p : -18 * p;
  const double base = strip_base() + 7 * p;
  add_filled("fill 0,0,0", "line 0,0,0", sign + 5 * p, base + 1 * p, 6 * p, 2 * p);
  add_filled("fill 0,0,0", "line 0,0,0", sign + 4 * p, base + 2 * p, 2 * p, 6 * p);
  const double arrows = is_right() ? -20 * p : m_total;
  add_filled(kHandleFill, kHandleLine, arrows, base, 10 * p, 10 * p);
  add_filled(kHandleFill, kHandleLine, arrows + 10 * p, base, 10 * p, 10 * p);
}

double expected_gadgets::column_height(std::size_t index) const {
  const auto& columns = m_text.info.columns;
  if (columns.kind != 1) return columns.heights[0];
  const double set = index < columns.heights.size() ? columns.heights[index] : 0;
  return set == 0 ? m_text.columns[index].height : set;
}

void expected_gadgets::column(std::size_t index) {
  const auto& columns = m_text.info.columns;
  const double x = (columns.width + columns.gutter) * static_cast<double>(index);
  const double height = column_height(index), row = m_text.info.vertical / 2.0;
  const auto top_of = [&](double own) { return row * (own - m_height); };
  if (index < m_text.columns.size() && m_text.columns[index].height > height) {
    const double reach = m_text.columns[index].height + pixels(2);
    add("line 64,64,64", x - pixels(1), pixels(1) + top_of(reach), columns.width + pixels(2), -reach);
  }
  const bool in_left_half = m_text.info.alignment == 2 && index < m_count / 2;
  handles(x, top_of(height), height, is_right() || in_left_half);
  strip(index);
}

void expected_gadgets::handles(double x, double top, double height, bool on_the_left) {
  const double p = m_pixel, width = m_text.info.columns.width, bottom = top - height;
  add("line 76,76,94", x - p, top + p, width + 2 * p, -height - 2 * p);
  grip(on_the_left ? x : x + width - 10 * p, hangs_up() ? top - 10 * p : bottom, on_the_left, hangs_up());
  const double arrows = (on_the_left ? x + width : x) - 5 * p;
  const double middle = hangs_up() ? top : bottom;
  add_filled(kHandleFill, kHandleLine, arrows, middle, 10 * p, 10 * p);
  add_filled(kHandleFill, kHandleLine, arrows, middle - 10 * p, 10 * p, 10 * p);
}

/// Three triangles in one corner, each a third smaller than the first.
void expected_gadgets::grip(double x, double bottom, bool right_angle_left, bool right_angle_top) {
  for (const double size : {pixels(10), pixels(20.0 / 3), pixels(10.0 / 3)})
    add("line 96,96,96", right_angle_left ? x : x + pixels(10) - size,
        right_angle_top ? bottom + pixels(10) - size : bottom, size, size);
}

void expected_gadgets::strip(std::size_t index) {
  const auto& columns = m_text.info.columns;
  const double x = (columns.width + columns.gutter) * static_cast<double>(index);
  const double y = strip_base() + pixels(2), high = pixels(20), unit = m_text.info.height;
  add_filled("fill 220,220,220", "line 96,96,96", x, y, columns.width, high);
  for (int i = 1; i * unit <= columns.width; ++i) {
    const double length = (i % 4 == 0 ? 0.7 : 0.35) * high;
    add("line 166,166,166", x + i * unit - pixels(0.25), y + (high - length) / 2, pixels(0.5), length);
  }
  if (index != 0) return;
  const mtext::format::paragraph& shown = m_text.format;
  for (const auto& each : shown.tabs) stop(unit * each.position, y);
  const double u = shown.relative ? unit : 1;
  const auto handle = [&](double at, double from, double width, double height) {
    add_filled("fill 248,248,248", "line 10,10,10", at, y + from * high, width * high, height * high);
  };
  handle((shown.left + shown.indent) * u - 0.2 * high, 0.7, 0.4, 0.3);
  handle(shown.left * u, 0, 0.25, 0.5);
  handle(columns.width - shown.right * u - 0.25 * high, 0, 0.25, 0.5);
}

/// The glyph of a left stop.
void expected_gadgets::stop(double x, double y) {
  const double size = pixels(14), left = x - size / 2, bottom = y + pixels(3);
  add_filled("fill 20,20,20", "line 20,20,20", left + 0.5 * size, bottom + 0.1 * size, 0.6 * size,
             0.2 * size);
  add_filled("fill 20,20,20", "line 20,20,20", left + 0.4 * size, bottom + 0.2 * size, 0.2 * size,
             0.6 * size);
}

void expected_gadgets::dot() {
  const double p = m_pixel, width = m_text.info.columns.width;
  add_filled(kHandleFill, kHandleLine, is_right() ? m_total - width - 7 * p : width + 2 * p,
             hangs_up() ? -m_height - 14.5 * p : 9.5 * p, 5 * p, 5 * p);
}

std::vector<drawn_shape> expected_gadgets::shapes() {
  m_shapes.clear();
  ruler();
  for (std::size_t i = 0; i < m_count; ++i) column(i);
  if (m_count >= 2 && m_text.info.alignment != 2) dot();
  return m_shapes;
}
