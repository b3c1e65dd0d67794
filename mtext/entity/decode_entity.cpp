#include "mtext/entity/decode_entity.h"

#include "mtext/decode.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/escape.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"
#include "od/field/field_markers.h"

namespace mtext {

namespace {

/// The field that an entity shows; null without one.
OdDbFieldPtr field_of(const OdDbObject& entity) {
  return odCastOrThrow<OdDbField>(entity.getField(OdDbField::kTextKey, OdDb::kForRead));
}

fields_map children_of(const OdDbField& field) {
  fields_map children;
  for (int i = 0; i < field.childCount(); ++i) {
    const auto child = field.getChild(i, /*forWrite=*/true);
    children[child->getFieldCode(OdDbField::kAddMarkers).str()] = child;
  }
  return children;
}

std::u16string escaped(std::u16string_view letters) {
  return escape_mtext(std::u16string(letters).c_str(), /*keep_line_feeds=*/false);
}

/// The text of a container as codes, though it is written without any.
std::u16string codes_of(const OdDbField& line) {
  const OdString code = line.getFieldCode(OdDbField::kFieldCode);
  std::u16string codes;
  for (const auto& [letters, reference] : odSplitAtReferences(code.str(), kOdChildReference)) {
    codes += escaped(letters);
    const OdDbFieldPtr child = reference ? line.childOrNull(reference->number) : OdDbFieldPtr();
    if (child) codes += child->getFieldCode(OdDbField::kAddMarkers).str();
  }
  return codes;
}

}  // namespace

entity_contents contents_of(const OdSmartPtr<OdDbMText>& entity) {
  const OdDbFieldPtr field = field_of(*entity);
  if (!field) return {entity->contents(), {}};
  return {field->getFieldCode(OdDbField::kAddMarkers), children_of(*field)};
}

entity_contents contents_of(const OdSmartPtr<OdDbText>& entity) {
  const OdDbFieldPtr field = field_of(*entity);
  if (!field) return {escaped(entity->textString().str()), {}};
  return {codes_of(*field), children_of(*field)};
}

geom_multitext decode(OdSmartPtr<OdDbMText> entity) {
  if (!entity) return {};
  const auto contents = contents_of(entity);
  const mtext_size_finder finder{OdSmartPtr<OdDbDatabase>(entity->database())};
  const auto info = mtext_convert_info(entity);
  return decode(contents.text.str(), default_mtext_format(entity), info, finder, contents.fields);
}

}  // namespace mtext
