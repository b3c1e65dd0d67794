#pragma once

#include "host/windowless/application.h"

/// Has sessions move the view to their text and not turn the text to the view: points of the text are points
/// of the world, and a moved caret leaves the text as it is painted. Holds from the next change of a
/// selection on.
inline void lay_flat(WindowlessApplication& application) {
  application.profile().setNumber(u"Text", u"Rotate", 0);
}
