#pragma once

#include <QIcon>

#include "ui/controls/color_swatch.h"

/// A square of 10 by 10 pixels in the colour, with a thin edge.
QIcon swatchIcon(const controls::color_swatch& swatch);
