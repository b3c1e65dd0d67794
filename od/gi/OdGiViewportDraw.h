#pragma once

#include "od/gi/OdGiCommonDraw.h"

class OdGiViewport;

/// Draws what depends on the view.
class OdGiViewportDraw : public OdGiCommonDraw {
 public:
  OdGiViewportDraw(OdGiGeometry& geometry, const OdGiContext& context, const OdGiViewport& viewport)
      : OdGiCommonDraw(geometry, context), m_viewport(viewport) {}

  const OdGiViewport& viewport() const { return m_viewport; }

 private:
  const OdGiViewport& m_viewport;
};
