#include "od/gi/OdGiDrawable.h"

ODRX_DEFINE_ABSTRACT_MEMBERS(OdGiDrawable, OdRxObject)

unsigned OdGiDrawable::setAttributes(OdGiDrawableTraits&) { return 0; }

bool OdGiDrawable::worldDraw(OdGiWorldDraw&) { return false; }

void OdGiDrawable::viewportDraw(OdGiViewportDraw&) {}
