#include "mtext/entity/decode_entity.h"

#include "mtext/decode.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"

namespace mtext {

entity_contents contents_of(const OdSmartPtr<OdDbMText>& entity) {
  const auto field = odCastOrThrow<OdDbField>(entity->getField(u"TEXT", OdDb::kForRead));
  if (!field) return {entity->contents(), {}};
  entity_contents result{field->getFieldCode(OdDbField::kAddMarkers), {}};
  for (int i = 0; i < field->childCount(); ++i) {
    const auto child = field->getChild(i, /*forWrite=*/true);
    result.fields[child->getFieldCode(OdDbField::kAddMarkers).str()] = child;
  }
  return result;
}

geom_multitext decode(OdSmartPtr<OdDbMText> entity) {
  if (!entity) return {};
  const auto contents = contents_of(entity);
  const mtext_size_finder finder{OdSmartPtr<OdDbDatabase>(entity->database())};
  const auto info = mtext_convert_info(entity);
  return decode(contents.text.str(), default_mtext_format(entity), info, finder, contents.fields);
}

}  // namespace mtext
