#pragma once

#include "od/gi/OdGiCommonDraw.h"

class OdGiDrawable;
class OdGiViewport;

/// Draws what is the same in every view.
class OdGiWorldDraw : public OdGiCommonDraw {
 public:
  /// Blocks within blocks are drawn to this depth.
  static constexpr int kMaxNesting = 100;

  /// `viewport` is handed to drawables that draw themselves anew in each view; null when there is no view,
  /// and such drawables then draw nothing.
  OdGiWorldDraw(OdGiGeometry& geometry, const OdGiContext& context, const OdGiViewport* viewport = nullptr)
      : OdGiCommonDraw(geometry, context), m_viewport(viewport) {}

  /// Draws a whole drawable: fresh traits, its attributes, its world draw and, where that asks for it, its
  /// viewport draw. A drawable on a layer that is not shown is left out. The traits are afterwards what they
  /// were.
  void draw(OdGiDrawable& drawable);
  /// The same for a part of a block, whose reference is being drawn and whose traits are in force: "by block"
  /// and layer "0" take the reference's values. False, with nothing drawn, when blocks nest deeper than
  /// `kMaxNesting`.
  bool drawInBlock(OdGiDrawable& drawable);

 private:
  void drawWith(OdGiDrawable& drawable, const OdGiSubEntityTraits& start);

  const OdGiViewport* m_viewport;
  int m_nesting = 0;
};
