#include "od/field/code_reader.h"

#include "od/field/evaluator_name.h"
#include "od/field/field_markers.h"

namespace field_code {

namespace {

/// A field that is being read.
struct Open {
  std::u16string code;
  std::vector<OdDbFieldPtr> children;
};

OdDbFieldPtr made(Open& open) {
  auto field = odNew<OdDbField>(OdString(evaluatorOf(open.code)), OdString());
  field->setFieldCode(std::move(open.code), OdDbField::kFieldCode, std::move(open.children));
  return field;
}

/// References to objects are part of the code that they stand in; anything else is a field.
bool isReference(std::u16string_view code) { return code.starts_with(u"\\_Obj"); }

void close(std::vector<Open>& open) {
  Open inner = std::move(open.back());
  open.pop_back();
  Open& outer = open.back();
  if (isReference(inner.code) && inner.children.empty()) {
    outer.code += odWithMarkers(inner.code);
    return;
  }
  outer.code += odFieldReference(kOdChildReference, outer.children.size());
  outer.children.push_back(made(inner));
}

OdDbFieldPtr withoutChildren(std::u16string_view code) {
  return odNew<OdDbField>(OdString(evaluatorOf(code)), OdString(code));
}

}  // namespace

OdDbFieldPtr read(std::u16string_view code) {
  std::vector<Open> open(1);
  for (std::size_t at = 0; at < code.size();) {
    const std::u16string_view pair = code.substr(at, 2);
    if (pair == kOdMarkerBegin) {
      open.emplace_back();
    } else if (pair == kOdMarkerEnd) {
      if (open.size() == 1) return withoutChildren(code);
      close(open);
    } else {
      open.back().code += code[at++];
      continue;
    }
    at += 2;
  }
  return open.size() == 1 ? made(open.front()) : withoutChildren(code);
}

std::u16string_view evaluatorOf(std::u16string_view code) {
  const std::size_t begin = code.find_first_not_of(u' ');
  if (begin == code.npos || code[begin] != u'\\') return {};
  const std::u16string_view name = code.substr(begin + 1);
  return name.substr(0, name.find_first_of(u" .("));
}

}  // namespace field_code
