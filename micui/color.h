#pragma once

#include "od/cm/OdCmEntityColor.h"

namespace micui {

/// The colour of what is not drawn, and of every new control.
inline OdCmEntityColor no_color() { return OdCmEntityColor(OdCmEntityColor::kNone); }

/// True for the method "none", and for the palette index that means none.
inline bool is_none(const OdCmEntityColor& color) {
  return color.colorMethod() == OdCmEntityColor::kNone ||
         (color.isByACI() && color.colorIndex() == OdCmEntityColor::kACInone);
}

}  // namespace micui
