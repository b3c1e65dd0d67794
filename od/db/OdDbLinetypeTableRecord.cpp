#include "od/db/OdDbLinetypeTableRecord.h"

#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbLinetypeTableRecord, OdDbSymbolTableRecord, "LTYPE")

namespace {

const OdDbSubclass kLinetype{"AcDbLinetypeTableRecord", {}};

}  // namespace

const OdDbSubclass& OdDbLinetypeTableRecord::ownPart() const { return kLinetype; }

std::unique_ptr<dxf::Record> OdDbLinetypeTableRecord::newRecord() const {
  return odNewRecord("LTYPE", {{100, u"AcDbSymbolTableRecord"},
                               {100, u"AcDbLinetypeTableRecord"},
                               {2, u""},
                               {70, 0},
                               {3, u""},
                               {72, 65},
                               {73, 0},
                               {40, 0.0}});
}

OdString OdDbLinetypeTableRecord::comments() const { return groups(kLinetype).string(3); }

double OdDbLinetypeTableRecord::patternLength() const { return groups(kLinetype).real(40, 0); }

std::vector<double> OdDbLinetypeTableRecord::dashes() const {
  std::vector<double> result;
  for (const std::size_t i : record().find_all(49, groups(kLinetype).range())) {
    result.push_back(record().get_double(i).value_or(0));
  }
  return result;
}
