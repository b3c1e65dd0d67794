#pragma once

#include "mtext/geom_multitext.h"
#include "od/db/OdDbMTextLayout.h"

namespace mtext {

/// Lays out and draws the multi-line texts of a database: set one on it with `OdDbDatabase::setTextLayout`.
class mtext_layout : public OdDbMTextLayout {
 public:
  OdDbMTextMeasure measure(const OdDbMText& text) override;
  void draw(const OdDbMText& text, OdGiWorldDraw& draw) override;
};

/// Width and height of the box that a text's attachment refers to: of all columns that its settings or its
/// layout have, and of the highest of them. 0 where none is set.
OdGeVector2d attachment_box(const geom_multitext& text);

}  // namespace mtext
