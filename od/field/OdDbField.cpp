#include "od/field/OdDbField.h"

#include <iterator>

#include "od/field/code_expansion.h"
#include "od/field/code_reader.h"

ODRX_DEFINE_MEMBERS(OdDbField, OdRxObject, u"FIELD")

/// The children of children end one after the other, or a deep field would end on the stack.
OdDbField::~OdDbField() {
  std::vector<OdDbFieldPtr> ending = std::move(m_children);
  while (!ending.empty()) {
    const OdDbFieldPtr field = std::move(ending.back());
    ending.pop_back();
    if (!field || field->numRefs() != 1) continue;
    std::move(field->m_children.begin(), field->m_children.end(), std::back_inserter(ending));
    field->m_children.clear();
  }
}

OdDbFieldPtr OdDbField::createFromCode(std::u16string_view code) { return field_code::read(code); }

OdString OdDbField::getFieldCode(int flags) const {
  if (flags == kEvaluatedText) return m_evaluated;
  return flags == kAddMarkers ? OdString(field_code::expanded(*this)) : m_code;
}

void OdDbField::setFieldCode(OdString code, int flags, std::vector<OdDbFieldPtr> children) {
  if (flags & kTextField) m_evaluator = u"_text";
  m_code = std::move(code);
  m_children = std::move(children);
  m_fileHandle = 0;
  m_state = kInitialized | kModified;
  m_status = kNotYetEvaluated;
}

void OdDbField::setEvaluation(OdFieldValue value, OdString text, EvaluationStatus status) {
  m_value = std::move(value);
  m_evaluated = std::move(text);
  m_status = status;
  // What files of other programs show: containers 9, fields that evaluated 43 and 59.
  m_state = kInitialized | kEvaluated;
  if (!isContainer()) m_state |= kCompiled | kHasCache | kHasFormattedText;
}

OdDbFieldPtr OdDbField::getChild(int index, bool) const {
  if (index < 0 || index >= childCount()) throw OdError_InvalidIndex();
  return m_children[static_cast<std::size_t>(index)];
}

OdDbFieldPtr OdDbField::childOrNull(std::uint64_t index) const {
  return index < m_children.size() ? m_children[static_cast<std::size_t>(index)] : OdDbFieldPtr();
}
