#include "od/db/field_list.h"

#include <algorithm>
#include <unordered_set>

#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/drawing_classes.h"

namespace {

constexpr const char16_t* kListName = u"ACAD_FIELDLIST";
constexpr std::string_view kIdSet = "AcDbIdSet";

/// The FIELDLIST of the drawing; null when there is none.
dxf::Record* listOf(OdDbDrawing& drawing) {
  const OdDbDictionaryPtr root = odOpen<OdDbDictionary>(drawing.rootDictionary());
  const OdDbObjectId id = root ? root->getAt(kListName) : OdDbObjectId();
  return id.isNull() || id.isErased() || !id.stub()->record->is("FIELDLIST") ? nullptr : id.stub()->record;
}

dxf::Record* newList(OdDbDrawing& drawing) {
  const OdDbDictionaryPtr root = odOpen<OdDbDictionary>(drawing.rootDictionary(), OdDb::kForWrite);
  if (!root) return nullptr;
  odNeedClass(drawing.file(), "FIELD", "AcDbField");
  odNeedClass(drawing.file(), "FIELDLIST", "AcDbFieldList");
  OdDbStub& stub = drawing.addObject("FIELDLIST", root->handle(), OdDbDrawing::kOwnerReacts);
  dxf::Record& record = *stub.record;
  record.insert_string(record.size(), 100, u"AcDbIdSet");
  record.insert_int(record.size(), 90, 0);
  record.insert_string(record.size(), 100, u"AcDbFieldList");
  root->setAt(kListName, OdDbObjectId(&stub));
  return &record;
}

std::unordered_set<dxf::Handle> entriesOf(const dxf::Record& list, dxf::Range range) {
  std::unordered_set<dxf::Handle> entries;
  for (const std::size_t i : list.find_all(330, range)) entries.insert(list.get_handle(i));
  return entries;
}

void writeCount(dxf::Record& list) {
  const auto range = list.subclass(kIdSet);
  const auto count = list.find(90, *range);
  const auto entries = static_cast<std::int64_t>(list.find_all(330, *range).size());
  if (count) return list.set_int(*count, entries);
  list.insert_int(range->begin, 90, entries);
}

}  // namespace

void odListFields(OdDbDrawing& drawing, const std::vector<dxf::Handle>& fields) {
  dxf::Record* list = listOf(drawing);
  if (!list) list = newList(drawing);
  const auto range = list ? list->subclass(kIdSet) : std::nullopt;
  if (!range) return;
  const auto known = entriesOf(*list, *range);
  std::size_t end = range->end;
  for (const dxf::Handle field : fields)
    if (!known.contains(field)) list->insert_handle(end++, 330, field);
  if (end != range->end) writeCount(*list);
}

void odUnlistFields(OdDbDrawing& drawing, const std::vector<dxf::Handle>& fields) {
  dxf::Record* list = listOf(drawing);
  const auto range = list ? list->subclass(kIdSet) : std::nullopt;
  if (!range) return;
  const std::unordered_set<dxf::Handle> leaving(fields.begin(), fields.end());
  auto entries = list->find_all(330, *range);
  std::erase_if(entries, [&](std::size_t i) { return !leaving.contains(list->get_handle(i)); });
  for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) list->erase(*entry);
  if (!entries.empty()) writeCount(*list);
}
