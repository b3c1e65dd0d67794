#pragma once

#include "mtext/geom_multitext.h"
#include "mtext/parse.h"
#include "od/base/OdString.h"

class OdDbMText;
class OdDbText;

namespace mtext {

/// The codes of an entity's text and the field objects for the markers in it.
struct entity_contents {
  OdString text;
  fields_map fields;
};

/// The contents of an entity; from its field "TEXT" where it has one. Throws `OdError_NotThatKindOfClass`
/// when that is no field.
entity_contents contents_of(const OdSmartPtr<OdDbMText>& entity);

/// The same of a single-line text, as codes: what reads as a code in it is escaped.
entity_contents contents_of(const OdSmartPtr<OdDbText>& entity);

/// The laid-out text of an entity; an empty one for null.
geom_multitext decode(OdSmartPtr<OdDbMText> entity);

}  // namespace mtext
