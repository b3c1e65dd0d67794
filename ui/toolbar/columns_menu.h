#pragma once

#include <optional>

#include "host/menu.h"
#include "ui/toolbar/text_change.h"

class CMTextEdit;
class ExMTextEditable;

namespace toolbar {

/// The menu of columns, with the kind checked that the text has.
HostMenu columns_menu(const ExMTextEditable& text);

/// What a row of the menu does to a text that is laid out. The dialogs behind "More..." and "Column
/// parameters..." are shown, and a text that can have no more columns is told to the user; nothing comes of
/// these, and of numbers that no row has.
std::optional<text_change> columns_change(int command, ExMTextEditable& text);

/// Opens the menu.
std::optional<text_change> ask_columns(CMTextEdit& bar);

}  // namespace toolbar
