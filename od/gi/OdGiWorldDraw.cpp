#include "od/gi/OdGiWorldDraw.h"

#include "od/gi/OdGiContext.h"
#include "od/gi/OdGiDrawable.h"

void OdGiWorldDraw::draw(OdGiDrawable& drawable) { drawWith(drawable, OdGiSubEntityTraits()); }

bool OdGiWorldDraw::drawInBlock(OdGiDrawable& drawable) {
  if (m_nesting >= kMaxNesting) return false;
  ++m_nesting;
  drawWith(drawable, OdGiSubEntityTraits::insideBlock(subEntityTraits()));
  --m_nesting;
  return true;
}

void OdGiWorldDraw::drawWith(OdGiDrawable& drawable, const OdGiSubEntityTraits& start) {
  OdGiSubEntityTraits saved = subEntityTraits();
  subEntityTraits() = start;
  drawable.setAttributes(subEntityTraits());
  if (context().layerIsVisible(subEntityTraits().layer())) {
    bool isDone = drawable.worldDraw(*this);
    if (!isDone && m_viewport) {
      OdGiViewportDraw viewDraw(geometry(), context(), *m_viewport);
      drawable.viewportDraw(viewDraw);
    }
  }
  subEntityTraits() = saved;
}
