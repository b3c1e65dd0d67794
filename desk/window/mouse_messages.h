#pragma once

#include <Qt>

#include "host/input.h"

class OdGsView;
class QMouseEvent;

/// The message numbers of a mouse button; 0 for a button that has none.
unsigned pressNumber(Qt::MouseButton button);
unsigned releaseNumber(Qt::MouseButton button);
unsigned doubleClickNumber(Qt::MouseButton button);

/// A mouse event as a window message, with its pixel and the point of the world that `view` shows there.
HostWindowMessage mouseMessage(unsigned number, const QMouseEvent& event, const OdGsView& view);
