#include "editor/editable.h"
#include "mtext/entity/draw_parts.h"
#include "od/db/OdDbDatabase.h"
#include "od/gi/OdGiContext.h"

void ExMTextEditable::drawGeometry(OdGiWorldDraw& draw) const {
  assertReadEnabled();
  OdGiGeometry& geometry = draw.geometry();
  draw.subEntityTraits().setLayer(layer());
  geometry.pushModelTransform(m_frame.text_to_world());
  mtext::draw_parts(
      displayed(), geometry, *drawingWithFonts(),
      {.text_color = color(), .layer_color = draw.context().layerColor(layer()), .draft = m_draft});
  geometry.popModelTransform();
}
