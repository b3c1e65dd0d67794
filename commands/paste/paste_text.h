#pragma once

#include <string>

/// Pastes the clipboard's text into the drawing as a new entity, outside any session: the text hangs on the
/// cursor, and a point of the prompt drops it.
extern "C" {

/// Whether there is something to paste: plain text, or the format that a session copies. Unless `check_only`,
/// pastes it into the active document. False without a document, too.
__attribute__((visibility("default"))) bool PasteText(bool check_only);

}  // extern "C"

/// Does the work of `PasteText`. `formatted`: `text` is format codes. `multiline`: it has more than one line.
/// A text that is neither becomes a single-line text.
void DoPasteContents(const std::u16string& text, bool formatted, bool multiline);
