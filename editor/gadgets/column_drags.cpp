#include "editor/gadgets/column_drags.h"

#include <algorithm>
#include <cmath>

namespace mtext {

namespace {

constexpr std::uint32_t kManualHeights = 1;
constexpr double kLeastLever = 0.3;

/// 0 for what is negative, and for what is no number.
double clipped(double length) { return length > 0 ? length : 0; }

double at_least_text_height(const editor& root, double width) {
  return std::max(clipped(width), root.text->info.height);
}

void set_height(column_settings& settings, std::size_t index, double height) {
  auto& heights = settings.heights;
  if (settings.kind != kManualHeights) {
    std::fill(heights.begin(), heights.end(), height);
    return;
  }
  if (heights.size() <= index) heights.resize(index + 1, 0.0);
  heights[index] = height;
}

/// Where a grip stands, counted from the attachment point.
struct grip_lever {
  double gutters;  ///< between them
  double columns;  ///< column widths between them, its own column's part included
};

grip_lever lever_of(const editor& root, std::size_t index) {
  const auto count = static_cast<double>(root.column_count);
  const auto place = static_cast<double>(index);
  if (root.horizontal == 3) return {count - (place + 1), count - (place + 1) + 1.0};
  if (root.horizontal != 2) return {place, place + 1.0};
  const double from_middle = std::abs(count / 2 - place - 0.5);
  return {from_middle, from_middle + 0.5};
}

}  // namespace

double width_from(const editor& root, const OdGePoint2d& at) {
  double distance = at.x - root.anchor.x;
  if (root.horizontal == 2) distance *= 2;
  if (root.horizontal == 3) distance = -distance;
  return clipped(distance);
}

double height_from(const editor& root, const OdGePoint2d& at) {
  double distance = -(at.y - root.anchor.y);
  if (root.vertical == 1) distance *= 2;
  if (root.vertical == 2) distance = -distance;
  return clipped(distance);
}

column_settings with_overall_width(const editor& root, const OdGePoint2d& at) {
  column_settings settings = root.settings;
  const double overall = at_least_text_height(root, width_from(root, at));
  if (root.column_count == 1) {
    settings.width = overall;
  } else {
    const auto count = static_cast<double>(root.column_count);
    const double columns = count * settings.width;
    settings.gutter = (std::max(overall, columns) - columns) / (count - 1);
  }
  return settings;
}

column_settings with_column_width(const editor& root, const OdGePoint2d& at) {
  column_settings settings = root.settings;
  settings.width = at_least_text_height(root, width_from(root, at));
  return settings;
}

column_settings with_column_height(const editor& root, std::size_t index, const OdGePoint2d& at) {
  column_settings settings = root.settings;
  set_height(settings, index, height_from(root, at));
  return settings;
}

std::optional<column_settings> with_corner(const editor& root, std::size_t index, std::uint32_t corner,
                                           const OdGePoint2d& at) {
  const grip_lever lever = lever_of(root, index);
  if (lever.columns < kLeastLever) return std::nullopt;
  column_settings settings = with_column_height(root, index, at);
  double distance = at.x - root.anchor.x;
  // The grip at the other side, corner 2, deliberately moves by the plain difference.
  if (corner == 3) distance = -distance;
  const double width = (clipped(distance) - lever.gutters * settings.gutter) / lever.columns;
  settings.width = at_least_text_height(root, width);
  return settings;
}

}  // namespace mtext
