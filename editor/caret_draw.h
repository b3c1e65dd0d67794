#pragma once

class ExMTextEditable;
class OdGiGeometry;

namespace editing {

/// Draws an I-beam for each caret, in world coordinates and colour 7. A selection that holds text has none.
void draw_carets(const ExMTextEditable& text, OdGiGeometry& geometry);

}  // namespace editing
