#pragma once

#include "editor/rich_text/rich_text.h"

namespace rich {

/// Reads RTF, given byte by byte: paragraphs, line breaks, tabs, the labels of lists, and what `style` holds.
/// Pictures, objects, notes and whatever is marked as to be left out by those who do not know it are left
/// out. Never fails; an input that is no RTF gives no characters.
text read_rtf(std::u16string_view bytes);

}  // namespace rich
