#pragma once

#include "mtext/geom_multitext.h"
#include "od/cm/OdCmEntityColor.h"

class OdGiFontContext;
class OdGiGeometry;

namespace mtext {

/// How `draw_parts` draws.
struct part_drawing {
  OdCmEntityColor text_color;   ///< for parts that have no colour of their own
  OdCmEntityColor layer_color;  ///< for parts whose colour is that of the layer (index 256)
  bool draft = false;           ///< boxes instead of letters, for what has to be quick
};

/// Draws the letters and stacks of a laid-out text in text coordinates, each where layout put it, with its
/// colour, underline and overline. The traits are afterwards what they were.
void draw_parts(const geom_multitext& text, OdGiGeometry& geometry, const OdGiFontContext& fonts,
                const part_drawing& drawing);

}  // namespace mtext
