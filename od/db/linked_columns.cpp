#include "od/db/linked_columns.h"

#include <unordered_set>

#include "od/db/OdDbDrawing.h"
#include "od/db/mtext_xdata.h"

namespace {

using Xdata = OdDbMTextXdata;

constexpr int kHandleInXdata = 1005;

}  // namespace

std::vector<dxf::Handle> odLinkedHandles(const dxf::Record& record) {
  std::vector<dxf::Handle> handles;
  // In the newest form one entity holds all columns, whatever was left behind of an older one.
  const auto block = record.embedded_object() ? std::nullopt : Xdata::find(record, Xdata::kColumns);
  if (!block) return handles;
  for (const std::size_t i : record.find_all(kHandleInXdata, *block)) handles.push_back(record.get_handle(i));
  return handles;
}

void odSetLinkedHandles(dxf::Record& record, const std::vector<dxf::Handle>& handles) {
  if (handles == odLinkedHandles(record)) return;
  if (handles.empty()) return Xdata::remove(record, Xdata::kColumns);
  std::vector<Xdata::Value> values = {{47, static_cast<int>(handles.size() + 1)}};
  for (const dxf::Handle handle : handles) values.push_back({0, OdDbHandle(handle)});
  Xdata::write(record, Xdata::kColumns, values);
}

void odLinkColumns(OdDbDrawing& drawing, const std::vector<OdDbStub*>& firstColumns) {
  const std::unordered_set<const OdDbStub*> first(firstColumns.begin(), firstColumns.end());
  std::unordered_set<OdDbStub*> blocks;
  for (OdDbStub* text : firstColumns) {
    OdDbStub* block = text->owner;
    for (const dxf::Handle handle : odLinkedHandles(*text->record)) {
      OdDbStub* column = drawing.find(OdDbHandle(handle));
      const bool isFree = column && column->owner == block && !first.contains(column);
      if (!isFree || !column->record || !column->record->is("MTEXT")) continue;
      column->owner = text;
      text->parts.push_back(column);
      blocks.insert(block);
    }
  }
  for (OdDbStub* block : blocks) drawing.dropParts(*block);
}
