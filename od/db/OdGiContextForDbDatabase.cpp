#include "od/db/OdGiContextForDbDatabase.h"

#include <algorithm>

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbSymbolTable.h"

namespace {

OdDbLayerTableRecordPtr layerOf(OdDbDatabase* database, const OdString& name) {
  const auto table = database ? odOpen<OdDbSymbolTable>(database->getLayerTableId()) : OdDbSymbolTablePtr();
  return table ? odOpen<OdDbLayerTableRecord>(table->getAt(name)) : OdDbLayerTableRecordPtr();
}

}  // namespace

OdCmEntityColor OdGiContextForDbDatabase::layerColor(const OdString& layer) const {
  const OdDbLayerTableRecordPtr record = layerOf(m_database, layer);
  return record ? OdCmEntityColor(record->color()) : OdCmEntityColor::fromIndex(7);
}

bool OdGiContextForDbDatabase::layerIsVisible(const OdString& layer) const {
  const OdDbLayerTableRecordPtr record = layerOf(m_database, layer);
  return !record || (!record->isOff() && !record->isFrozen());
}

void OdGiContextForDbDatabase::report(const OdString& sentence) const {
  if (std::find(m_diagnostics.begin(), m_diagnostics.end(), sentence) == m_diagnostics.end())
    m_diagnostics.push_back(sentence);
}
