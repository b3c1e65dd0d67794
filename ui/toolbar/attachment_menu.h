#pragma once

#include <optional>

#include "host/menu.h"
#include "ui/toolbar/text_change.h"

class CMTextEdit;
class ExMTextEditable;

namespace toolbar {

/// The menu of the nine places of a text at its insertion point, with the present one checked.
HostMenu attachment_menu(const ExMTextEditable& text);

/// Moves the text to another place at its insertion point.
std::optional<text_change> ask_attachment(CMTextEdit& bar);

}  // namespace toolbar
