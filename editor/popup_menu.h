#pragma once

#include "od/ge/OdGePoint3d.h"

struct HostWindowMessage;
class smart_edit;

namespace editing {

/// The right button was let go over the world point `point`: shows the menu of the session, or has the
/// reference product show it where that is there, and does what was chosen. The carets stay where they are.
void show_popup_menu(smart_edit& session, const HostWindowMessage& message, const OdGePoint3d& point);

}  // namespace editing
