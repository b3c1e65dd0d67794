#pragma once

#include "od/ge/OdGeVector3d.h"

class OdDbDatabase;

/// How new text lies.
struct text_orientation {
  OdGeVector3d normal = OdGeVector3d::kZAxis;
  double rotation = 0;  ///< radians, from the x axis that the normal gives, about the normal
};

/// New text lies in the plane that the user works in, along its x axis.
text_orientation getTextOrientation(const OdDbDatabase& database);
