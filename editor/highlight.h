#pragma once

#include <vector>

#include "editor/column_boxes.h"

class ExMTextEditable;
class OdGiGeometry;

namespace editing {

/// The boxes that show what is selected, in text coordinates. Neighbours on one row join; list labels are
/// left out.
std::vector<text_box> selection_boxes(const mtext::geom_multitext& text);

/// The boxes that show fields.
std::vector<text_box> field_boxes(const mtext::geom_multitext& text);

/// Draws both, transparent, in world coordinates; the traits are afterwards what they were.
void draw_highlights(const ExMTextEditable& text, OdGiGeometry& geometry);

}  // namespace editing
