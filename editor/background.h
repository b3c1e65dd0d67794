#pragma once

#include <vector>

#include "editor/column_boxes.h"
#include "od/cm/OdCmEntityColor.h"

class ExMTextEditable;
class OdGiGeometry;

namespace editing {

/// The colour of the edit area on `background`: a tenth of the way to white on a dark one and to black on a
/// light one.
OdCmEntityColor tinted(const OdCmEntityColor& background);

/// What is filled behind a text of columns: their boxes, with the reach of the text's mask.
std::vector<text_box> background_boxes(const ExMTextEditable& text);

/// Fills boxes of the text being edited: with its mask where it has one, else with the tint of the drawing's
/// background. World coordinates; fill type and colour are afterwards what they were.
void draw_background(const ExMTextEditable& text, const std::vector<text_box>& boxes,
                     const OdCmEntityColor& drawing_background, OdGiGeometry& geometry);

}  // namespace editing
