#pragma once

#include <QString>
#include <vector>

#include "host/input.h"

class QKeyEvent;

/// The window messages of a key event: WM_KEYDOWN and the characters behind it, or WM_KEYUP. A held key sends
/// its downs with their count and one up in the end. What AltGr typed comes as composed text, without the
/// keys that AltGr stands for on some systems. The pixels and points stay 0.
std::vector<HostWindowMessage> keyMessages(const QKeyEvent& event);

/// The window messages of composed text, each character as a key without a number that comes `repeat` times.
std::vector<HostWindowMessage> composedMessages(const QString& text, int repeat = 1);
