#pragma once

#include "od/gi/OdGiViewportDraw.h"

namespace micui {

/// Length of one screen pixel in the units of the model that is being drawn: those of a gadget, through all
/// model transforms that are pushed.
double pixel_size(const OdGiViewportDraw& draw);

}  // namespace micui
