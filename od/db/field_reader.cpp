#include "od/db/field_reader.h"

#include <unordered_set>

#include "od/db/OdDbDrawing.h"
#include "od/db/field_code_form.h"

namespace {

/// Code pieces 2 and 3 in file order; they stand before the number of children.
OdString codeOf(const dxf::Record& record, dxf::Range range) {
  OdString code;
  for (std::size_t i = range.begin; i < range.end && record[i].code() != 90; ++i) {
    if (record[i].code() == 2 || record[i].code() == 3) code += record.get_string(i);
  }
  return code;
}

OdString evaluatedTextOf(const dxf::Record& record, dxf::Range range) {
  OdString text;
  for (const int code : {301, 9}) {
    for (const std::size_t i : record.find_all(code, range)) text += record.get_string(i);
  }
  return text;
}

std::vector<dxf::Handle> handlesOf(const dxf::Record& record, int code) {
  std::vector<dxf::Handle> handles;
  // The value may name an object too, behind the first data entry.
  dxf::Range range = OdDbGroups(record, odFieldSubclass()).range();
  if (const auto data = record.find(6, range)) range.end = *data;
  for (const std::size_t i : record.find_all(code, range)) handles.push_back(record.get_handle(i));
  return handles;
}

OdDbFieldPtr fieldOf(const dxf::Record& record) {
  const OdDbGroups groups(record, odFieldSubclass());
  const OdString code = odFieldCodeInMemory(codeOf(record, groups.range()), handlesOf(record, 331));
  auto field = odNew<OdDbField>(groups.string(1), code);
  const int status = groups.integer(95, OdDbField::kSuccess);
  field->setEvaluation({}, odFieldShown(record), static_cast<OdDbField::EvaluationStatus>(status));
  field->setEvaluationOption(groups.integer(91, OdDbField::kAutomatic));
  field->setFileHandle(record.handle());
  return field;
}

}  // namespace

const OdDbSubclass& odFieldSubclass() {
  static const OdDbSubclass part{"AcDbField", {}};
  return part;
}

/// A field without a character could not be told from none in a text.
OdString odFieldShown(const dxf::Record& record) {
  const OdDbGroups groups(record, odFieldSubclass());
  const OdString text = evaluatedTextOf(record, groups.range());
  const bool isContainer = groups.string(1) == OdString(u"_text");
  return text.isEmpty() && !isContainer ? OdString(OdDbField::kNothingShown) : text;
}

std::vector<dxf::Handle> odFieldChildren(const dxf::Record& record) { return handlesOf(record, 360); }

OdDbFieldPtr odReadField(OdDbDrawing& drawing, OdDbStub& stub) {
  struct Open {
    OdDbFieldPtr field;
    const dxf::Record* record;
  };
  const OdDbFieldPtr root = fieldOf(*stub.record);
  std::vector<Open> open{{root, stub.record}};
  std::unordered_set<const dxf::Record*> seen{stub.record};
  while (!open.empty()) {
    const Open parent = open.back();
    open.pop_back();
    for (const dxf::Handle handle : odFieldChildren(*parent.record)) {
      const OdDbStub* child = drawing.find(OdDbHandle(handle));
      const bool usable = child && child->record && child->record->is("FIELD");
      const bool fresh = usable && seen.insert(child->record).second;
      parent.field->addChild(fresh ? fieldOf(*child->record) : odNew<OdDbField>());
      if (fresh) open.push_back({parent.field->getChild(parent.field->childCount() - 1), child->record});
    }
  }
  return root;
}

double odTextChecksum(std::u16string_view text) {
  double sum = 0;
  for (std::size_t i = 0; i < text.size(); ++i) sum += static_cast<double>(i + 1) * text[i];
  return sum;
}

bool odFieldIsStale(const dxf::Record& record, const OdString& hostText) {
  const dxf::Range range = OdDbGroups(record, odFieldSubclass()).range();
  for (const std::size_t key : record.find_all(6, range)) {
    if (record.get_string(key) != u"ACFD_FIELDTEXT_CHECKSUM") continue;
    const auto sum = record.find(140, {key, range.end});
    return sum && record.get_double(*sum) != odTextChecksum(hostText.str());
  }
  return false;
}
