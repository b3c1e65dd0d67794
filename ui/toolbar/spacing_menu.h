#pragma once

#include <optional>

#include "host/menu.h"
#include "ui/toolbar/text_change.h"

class CMTextEdit;
class ExMTextEditable;

namespace toolbar {

/// The menu of line spacings, with the one checked that the touched paragraphs have.
HostMenu spacing_menu(const ExMTextEditable& text);

/// Gives the paragraphs a spacing of the menu, or one of the dialog behind "More...".
std::optional<text_change> ask_spacing(CMTextEdit& bar);

}  // namespace toolbar
