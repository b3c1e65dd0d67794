#include "od/db/OdDbLayerTableRecord.h"

#include <cstdlib>

#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbLayerTableRecord, OdDbSymbolTableRecord, "LAYER")

namespace {

constexpr int kOrder[] = {2, 70, 62, 420, 430, 6, 290, 370, 390, 347, 348};
const OdDbSubclass kLayer{"AcDbLayerTableRecord", kOrder};

constexpr int kFrozen = 1;
constexpr int kLocked = 4;

}  // namespace

const OdDbSubclass& OdDbLayerTableRecord::ownPart() const { return kLayer; }

std::unique_ptr<dxf::Record> OdDbLayerTableRecord::newRecord() const {
  return odNewRecord("LAYER", {{100, u"AcDbSymbolTableRecord"},
                               {100, u"AcDbLayerTableRecord"},
                               {2, u""},
                               {70, 0},
                               {62, 7},
                               {6, u"Continuous"}});
}

OdCmColor OdDbLayerTableRecord::color() const {
  const OdDbGroups layer = groups(kLayer);
  if (layer.has(420))
    return OdCmEntityColor::fromRaw(0xC2000000u | (static_cast<unsigned>(layer.integer(420, 0)) & 0xFFFFFFu));
  // A negative index is that of a layer switched off.
  return OdCmEntityColor::fromIndex(std::abs(layer.integer(62, 7)));
}

void OdDbLayerTableRecord::setColor(const OdCmEntityColor& color) {
  const bool off = isOff();
  OdDbGroupEditor layer = edit(kLayer);
  layer.setInteger(62, off ? -color.colorIndex() : color.colorIndex());
  if (color.isByColor())
    layer.setInteger(420, color.trueColor());
  else
    layer.remove(420);
  layer.remove(430);
}

bool OdDbLayerTableRecord::isLocked() const { return groups(kLayer).flag(70, kLocked); }

void OdDbLayerTableRecord::setIsLocked(bool locked) { edit(kLayer).setFlag(70, kLocked, locked); }

bool OdDbLayerTableRecord::isFrozen() const { return groups(kLayer).flag(70, kFrozen); }

void OdDbLayerTableRecord::setIsFrozen(bool frozen) { edit(kLayer).setFlag(70, kFrozen, frozen); }

bool OdDbLayerTableRecord::isOff() const { return groups(kLayer).integer(62, 7) < 0; }

void OdDbLayerTableRecord::setIsOff(bool off) {
  const int index = std::abs(groups(kLayer).integer(62, 7));
  edit(kLayer).setInteger(62, off ? -index : index, 7);
}

bool OdDbLayerTableRecord::isPlottable() const {
  return groups(kLayer).integer(290, 1) != 0 && getName().iCompare(u"DEFPOINTS") != 0;
}

OdString OdDbLayerTableRecord::linetype() const { return groups(kLayer).string(6, u"Continuous"); }

int OdDbLayerTableRecord::lineWeight() const { return groups(kLayer).integer(370, OdDb::kLnWtByLwDefault); }
