#pragma once

#include "od/cm/OdCmColor.h"
#include "od/db/OdDbSymbolTableRecord.h"

/// A layer.
class OdDbLayerTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbLayerTableRecord)

 public:
  OdDbLayerTableRecord() = default;

  OdCmColor color() const;
  void setColor(const OdCmEntityColor& color);
  bool isLocked() const;
  void setIsLocked(bool locked);
  bool isFrozen() const;
  void setIsFrozen(bool frozen);
  bool isOff() const;
  void setIsOff(bool off);
  /// The layer of definition points never plots.
  bool isPlottable() const;
  OdString linetype() const;
  /// Hundredths of a millimetre, or `OdDb::kLnWtByLwDefault`.
  int lineWeight() const;

 protected:
  std::unique_ptr<dxf::Record> newRecord() const override;
  const OdDbSubclass& ownPart() const override;
};

using OdDbLayerTableRecordPtr = OdSmartPtr<OdDbLayerTableRecord>;
