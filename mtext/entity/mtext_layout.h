#pragma once

#include <memory>

#include "mtext/geom_multitext.h"
#include "od/db/OdDbMTextLayout.h"
#include "od/ge/OdGeExtents3d.h"

namespace mtext {

/// Lays out and draws the multi-line texts of a database: set one on it with `OdDbDatabase::setTextLayout`.
class mtext_layout : public OdDbMTextLayout {
 public:
  OdDbMTextMeasure measure(const OdDbMText& text) override;
  std::vector<OdString> columnContents(const OdDbMText& text, Spelling spelling) override;
  void draw(const OdDbMText& text, OdGiWorldDraw& draw) override;

 protected:
  /// The text of an entity of a database as it is measured and drawn.
  virtual std::shared_ptr<const geom_multitext> laid_out(const OdDbMText& text) const;
};

/// Width and height of the box that a text's columns are set to: of all columns that its settings or its
/// layout have, and of the highest of them. 0 where none is set.
OdGeVector2d column_box(const geom_multitext& text);

/// Box of the lines of a laid-out text in its own coordinates: from the ascent of the highest to the descent
/// of the lowest. Line ends have a width for the eye's sake alone and do not count. Without lines not valid.
OdGeExtents3d line_extents(const geom_multitext& text);

/// How far a column of a laid-out text reaches below its last baseline at least, in drawing units. A column
/// ends a whole line pitch below its last line's top, but a text is attached by its letters: a bottom
/// attachment point lies on the last baseline, a middle one halfway between it and the first line's top.
double last_line_leading(const geom_multitext& text);

}  // namespace mtext
