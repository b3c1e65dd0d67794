#include "ui/toolbar/column_choice.h"

#include <algorithm>
#include <cmath>

namespace toolbar {
namespace {

using mtext::column_settings;

enum column_kind : std::uint32_t { kFixed = 0, kManual = 1, kAutomatic = 2 };
enum dialog_type : std::uint32_t { kNone = 0, kStatic = 1, kDynamic = 2 };

bool has_none(const column_settings& columns) {
  return columns.kind == kFixed && columns.heights.size() == 1;
}

double greatest_height(const column_settings& columns) {
  return *std::max_element(columns.heights.begin(), columns.heights.end());
}

double total_width(double width, double gutter, std::size_t count) {
  return (width + gutter) * static_cast<double>(count) - gutter;
}

column_settings one_column(const mtext::geom_multitext& text) {
  const auto& columns = text.info.columns;
  return {.width = total_width(columns.width, columns.gutter, count_of(text)),
          .heights = {greatest_height(columns)}};
}

column_settings flowing_columns(const mtext::geom_multitext& text, column_kind kind) {
  const auto& columns = text.info.columns;
  const double height = text.info.height;
  column_settings made{.width = std::max(height, columns.width),
                       .gutter = columns.gutter,
                       .kind = kind,
                       .heights = {greatest_height(columns)}};
  if (!has_none(columns)) return made;
  made.width = 12 * height;
  for (const auto& line : text.lines) made.width = std::max(made.width, line.size.advance);
  made.gutter = 4 * height;
  return made;
}

/// `count` columns that share the width of a text without columns. Where they would be narrower than the text
/// is high, the gutters shrink, and where that is not enough there are none.
column_settings shared_width(double width, double height, std::size_t count) {
  const auto n = static_cast<double>(count);
  column_settings made{.gutter = 4 * height};
  made.width = (width - (n - 1) * made.gutter) / n;
  if (made.width < height) {
    made.width = height;
    made.gutter = (width - n * height) / (n - 1);
  }
  if (made.gutter < 0) {
    made.gutter = 0;
    made.width = width / n;
  }
  return made;
}

column_settings fixed_columns(const mtext::geom_multitext& text, std::size_t count) {
  const auto& columns = text.info.columns;
  column_settings made = shared_width(columns.width, text.info.height, count);
  if (!has_none(columns)) {
    made.width = std::max(columns.width, text.info.height);
    made.gutter = columns.gutter;
  }
  made.heights.assign(count, greatest_height(columns));
  return made;
}

column_values in_dialog(const column_settings& columns, dialog_type type, std::size_t count,
                        double text_height) {
  return {.type = type,
          .auto_height = static_cast<std::uint8_t>(columns.kind == kAutomatic),
          .count = static_cast<std::uint32_t>(count),
          .height = greatest_height(columns),
          .column_width = columns.width,
          .gutter = columns.gutter,
          .total = total_width(columns.width, columns.gutter, count),
          .text_height = text_height};
}

}  // namespace

std::size_t count_of(const mtext::geom_multitext& text) {
  const auto& columns = text.info.columns;
  return columns.kind == kFixed ? columns.heights.size() : text.columns.size();
}

int checked_command(const column_settings& columns) {
  if (columns.kind == kAutomatic) return kAutoHeight;
  if (columns.kind == kManual) return kManualHeight;
  const std::size_t count = columns.heights.size();
  if (count == 1) return kNoColumns;
  return count <= 6 ? kTwoColumns + static_cast<int>(count) - 2 : static_cast<int>(kMoreColumns);
}

std::optional<column_settings> columns_of(int command, const mtext::geom_multitext& text) {
  if (command == kNoColumns) return one_column(text);
  if (command == kAutoHeight) return flowing_columns(text, kAutomatic);
  if (command == kManualHeight) return flowing_columns(text, kManual);
  if (command < kTwoColumns || command > kSixColumns) return {};
  return fixed_columns(text, static_cast<std::size_t>(command - kTwoColumns) + 2);
}

column_values more_columns(const mtext::geom_multitext& text, double width) {
  constexpr std::size_t kFirstBeyondTheMenu = 7;
  constexpr double kNoWidth = 0.001;
  const std::size_t count = std::max(kFirstBeyondTheMenu, count_of(text));
  column_settings made = fixed_columns(text, count);
  if (std::abs(made.width) <= kNoWidth) {
    made.width = width;
    made.gutter = 5 * text.info.height;
  }
  column_values values = in_dialog(made, kStatic, count, text.info.height);
  values.auto_height = 1;
  return values;
}

column_values column_parameters(const mtext::geom_multitext& text) {
  const auto& columns = text.info.columns;
  const dialog_type type = columns.kind != kFixed ? kDynamic : has_none(columns) ? kNone : kStatic;
  return in_dialog(columns, type, count_of(text), text.info.height);
}

column_settings columns_of(const column_values& values) {
  if (values.type == kNone)
    return {.width = values.total, .gutter = values.total * 0.2, .heights = {values.height}};
  column_settings made{.width = values.column_width, .gutter = values.gutter};
  const bool automatic = values.type == kDynamic && values.auto_height != 0;
  if (values.type == kDynamic) made.kind = automatic ? kAutomatic : kManual;
  made.heights.assign(automatic ? 1 : std::max(values.count, 1U), values.height);
  return made;
}

}  // namespace toolbar
