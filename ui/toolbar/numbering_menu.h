#pragma once

#include <optional>
#include <span>

#include "host/menu.h"
#include "ui/toolbar/text_change.h"

class CMTextEdit;
class ExMTextEditable;

namespace toolbar {

/// The bullets that list items may have, in the order of the menu.
std::span<const char16_t* const> bullets();

/// The menu of lists, with the kind checked that all touched paragraphs have.
HostMenu numbering_menu(const ExMTextEditable& text);

/// Makes list items of the paragraphs, or plain paragraphs.
std::optional<text_change> ask_numbering(CMTextEdit& bar);

}  // namespace toolbar
