#pragma once

class QKeyEvent;

/// The virtual key number of a key event: 8 Backspace, 13 Enter, 37 Left, 65 the A key whatever the layout
/// makes of it with Ctrl, and so on. 231 for a key that has none.
int virtualKeyOf(const QKeyEvent& event);
