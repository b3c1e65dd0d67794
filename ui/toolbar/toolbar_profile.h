#pragma once

#include "host/input.h"

/// What the application remembers for its user between toolbars.
namespace toolbar {

/// Where the window stood last, in pixels of the screen. It may lie off the screen, and is used as it is.
HostPixel place_in_profile();
void keep_place(const HostPixel& place);

/// Whether the buttons for bold to overlined bear the letters of English.
bool has_english_letters();

}  // namespace toolbar
