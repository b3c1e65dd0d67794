#include "commands/base/text_codes.h"

#include "od/field/OdDbField.h"

namespace {

OdDbFieldPtr field_of(const OdDbEntity& text) {
  return odCast<OdDbField>(text.getField(OdDbField::kTextKey));
}

std::vector<OdDbFieldPtr> children_of(const OdDbField& field) {
  std::vector<OdDbFieldPtr> children;
  for (int i = 0; i < field.childCount(); ++i) children.push_back(field.getChild(i));
  return children;
}

/// Writes codes into the field of a text; false when it has none.
bool set_field_codes(OdDbEntity& text, const std::u16string& codes) {
  const OdDbFieldPtr field = field_of(text);
  if (!field) return false;
  field->setFieldCode(codes, OdDbField::kTextField, children_of(*field));
  text.setField(OdDbField::kTextKey, *field);
  return true;
}

}  // namespace

std::u16string codes_of(const OdDbMText& text) {
  const OdDbFieldPtr field = field_of(text);
  return (field ? field->getFieldCode(OdDbField::kFieldCode) : text.contents()).str();
}

std::u16string codes_of(const OdDbText& text) {
  const OdDbFieldPtr field = field_of(text);
  return (field ? field->getFieldCode(OdDbField::kFieldCode) : text.textString()).str();
}

void set_codes(OdDbMText& text, const std::u16string& codes) {
  if (codes == codes_of(text)) return;
  if (!set_field_codes(text, codes)) text.setContents(codes);
}

void set_codes(OdDbText& text, const std::u16string& codes) {
  if (codes == codes_of(text)) return;
  if (!set_field_codes(text, codes)) text.setTextString(codes);
  if (!text.isDefaultAlignment()) text.adjustAlignment();
}
