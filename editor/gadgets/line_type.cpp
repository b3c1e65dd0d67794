#include "editor/gadgets/line_type.h"

#include "od/gi/OdGiViewDashes.h"

void vcgiSetLineType(OdGiSubEntityTraits& traits, int line_type, int /*scale*/) {
  traits.setLineType(line_type == kVcgiDashed ? kOdGiViewDashes : u"ByLayer");
}
