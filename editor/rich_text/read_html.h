#pragma once

#include "editor/rich_text/rich_text.h"

namespace rich {

/// Reads an HTML document or a piece of one: paragraphs, line breaks, lists, and what `style` holds, from
/// elements and from their `style` attributes. Scripts, style sheets and all that is loaded from elsewhere
/// are left out. Never fails; an input without elements, or without characters, gives no characters.
text read_html(std::u16string_view source);

}  // namespace rich
