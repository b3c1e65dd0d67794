#include "editor/gadgets/line_type.h"

void vcgiSetLineType(OdGiSubEntityTraits& traits, int line_type, int /*scale*/) {
  traits.setLineType(line_type == kVcgiDashed ? u"DASHED" : u"ByLayer");
}
