#include "ui/dialogs/window/window_display.h"

// Runs when the module is loaded: from then on its dialogs are windows.

namespace {

WindowDisplay display;
const dialogs::ShowingDialogs kShowing(display);

}  // namespace
