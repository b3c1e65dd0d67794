#pragma once

#include "od/ge/OdGeMatrix3d.h"
#include "od/ge/OdGePlane.h"

/// Where a text stands in the world: the entity's insertion point and plane, and the box that its attachment
/// refers to: it ends at the last baseline, so that leading below it moves no text. Text coordinates have
/// their origin at the top left corner of that box, x along the direction, and run into negative y.
struct text_frame {
  OdGePoint3d location{};                         ///< the entity's insertion point, world coordinates
  OdGeVector3d normal = OdGeVector3d::kZAxis;     ///< length 1
  OdGeVector3d direction = OdGeVector3d::kXAxis;  ///< of the lines; length 1, in the plane
  double width = 0;                               ///< of the box, drawing units; 0 where lines do not wrap
  double height = 0;                              ///< of the box; 0 where none is set
  double leading = 0;                             ///< of the box below the last baseline
  int attachment = 0;                             ///< 0 top left to 8 bottom right, row by row

  OdGeVector3d up() const { return normal.crossProduct(direction); }
  /// From the top left corner to the insertion point, for the present attachment.
  OdGeVector3d attachment_offset() const {
    return direction * (width * 0.5 * (attachment % 3)) -
           up() * ((height - leading) * 0.5 * (attachment / 3));
  }
  /// The origin of text coordinates.
  OdGePoint3d top_left() const { return location - attachment_offset(); }
  /// The text's plane with that origin.
  OdGePlane plane() const { return OdGePlane(top_left(), direction, up()); }
  OdGeMatrix3d text_to_world() const { return OdGeMatrix3d::planeToWorld(plane()); }
  OdGeMatrix3d world_to_text() const { return OdGeMatrix3d::worldToPlane(plane()); }
};
