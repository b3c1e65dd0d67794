#pragma once

#include <optional>

#include "mtext/geom_multitext.h"
#include "ui/dialogs/column_values.h"

/// What the rows of the columns menu make of the columns of a text, as numbers alone.
namespace toolbar {

/// Numbers of the menu.
enum columns_command : int {
  kManualHeight = 1070,
  kNoColumns = 1071,
  kTwoColumns = 1072,
  kSixColumns = 1076,
  kMoreColumns = 1077,
  kInsertColumn = 1078,
  kAutoHeight = 1079,
  kColumnParameters = 1080,
};

/// A text has no more columns than this.
inline constexpr std::size_t kMostColumns = 100;

/// How many columns a text has: those that are told by their heights are counted by these, all others by
/// those that were laid out.
std::size_t count_of(const mtext::geom_multitext& text);

/// The row that the columns of a text are checked at.
int checked_command(const mtext::column_settings& columns);

/// The columns that a row stands for, from `kManualHeight` to `kSixColumns` or `kAutoHeight`; nothing for all
/// other rows. `text` has to be laid out.
std::optional<mtext::column_settings> columns_of(int command, const mtext::geom_multitext& text);

/// What the dialog begins with behind "More..." and behind "Column parameters..."; `width` is that of the
/// box, and stands in for columns that have none.
column_values more_columns(const mtext::geom_multitext& text, double width);
column_values column_parameters(const mtext::geom_multitext& text);

/// The columns that came back from the dialog.
mtext::column_settings columns_of(const column_values& values);

}  // namespace toolbar
