#pragma once

#include "micui/circle.h"
#include "micui/mixin.h"
#include "micui/resizer.h"
#include "micui/rhomb.h"
#include "micui/sizer.h"

/// The shapes that a user drags, and the colours that they share.
namespace mtext {

using arrow_handle = micui::mixin<micui::rhomb, resizer>;
using grip_handle = micui::mixin<micui::sizer, resizer>;
using edge_handle = micui::mixin<micui::frame, resizer>;
using dot_handle = micui::mixin<micui::circle, resizer>;

inline const OdCmEntityColor kHandleBorder{128, 128, 128};
inline const OdCmEntityColor kHandleFill{64, 64, 64};

}  // namespace mtext
