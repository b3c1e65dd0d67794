#pragma once

#include "od/cm/OdCmEntityColor.h"

class ExMTextEditable;
class OdGiGeometry;

namespace editing {

/// The colour of the edit area on `background`: a tenth of the way to white on a dark one and to black on a
/// light one.
OdCmEntityColor tinted(const OdCmEntityColor& background);

/// Fills the columns of the text being edited: with its mask where it has one, else with the tint of the
/// drawing's background. World coordinates; fill type and colour are afterwards what they were.
void draw_background(const ExMTextEditable& text, const OdCmEntityColor& drawing_background,
                     OdGiGeometry& geometry);

}  // namespace editing
