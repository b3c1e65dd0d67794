#pragma once

#include "od/gi/OdGiGeometry.h"

class OdGiContext;

/// What a drawable is handed to draw itself with. Only refers to its three companions, which outlive it.
class OdGiCommonDraw {
 public:
  OdGiGeometry& geometry() const { return m_geometry; }
  OdGiSubEntityTraits& subEntityTraits() const { return m_geometry.traits(); }
  const OdGiContext& context() const { return m_context; }

 protected:
  OdGiCommonDraw(OdGiGeometry& geometry, const OdGiContext& context)
      : m_geometry(geometry), m_context(context) {}
  ~OdGiCommonDraw() = default;

 private:
  OdGiGeometry& m_geometry;
  const OdGiContext& m_context;
};
