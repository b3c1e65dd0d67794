#pragma once

#include "od/dxf/file.h"

namespace dxf {

/// An empty drawing in text form that every reader accepts: header, the tables with what must be in them,
/// model and paper space, and from R2000 the classes, the root dictionary and the layouts.
/// `version` is R12, R2000, R2004, R2007, R2010, R2013 or R2018; others throw `OdError(eInvalidInput)`.
File new_drawing(Version version);

}  // namespace dxf
