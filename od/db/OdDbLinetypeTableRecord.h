#pragma once

#include <vector>

#include "od/db/OdDbSymbolTableRecord.h"

/// A line pattern.
class OdDbLinetypeTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbLinetypeTableRecord)

 public:
  OdDbLinetypeTableRecord() = default;

  OdString comments() const;
  double patternLength() const;
  /// Drawing units at scale 1: above 0 a dash, below a gap, 0 a dot.
  std::vector<double> dashes() const;

 protected:
  std::unique_ptr<dxf::Record> newRecord() const override;
  const OdDbSubclass& ownPart() const override;
};

using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;
