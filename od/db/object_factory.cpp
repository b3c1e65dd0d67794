#include "od/db/object_factory.h"

#include <string_view>
#include <unordered_map>

#include "od/db/OdDb2dPolyline.h"
#include "od/db/OdDbArc.h"
#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbAttributeDefinition.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbCircle.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbDimension.h"
#include "od/db/OdDbEllipse.h"
#include "od/db/OdDbFace.h"
#include "od/db/OdDbHatch.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbLeader.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbLinetypeTableRecord.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbPoint.h"
#include "od/db/OdDbPolyline.h"
#include "od/db/OdDbSolid.h"
#include "od/db/OdDbSpline.h"
#include "od/db/OdDbText.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/db/OdDbUnknownEntity.h"
#include "od/db/OdDbUnknownObject.h"
#include "od/db/OdDbViewport.h"
#include "od/db/OdDbViewportTableRecord.h"

namespace {

using Maker = OdDbObjectPtr (*)();

template <typename T>
OdDbObjectPtr make() {
  return odNew<T>();
}

const std::unordered_map<std::string_view, Maker>& makers() {
  static const std::unordered_map<std::string_view, Maker> table = {
      {"3DFACE", make<OdDbFace>},
      {"ARC", make<OdDbArc>},
      {"ATTDEF", make<OdDbAttributeDefinition>},
      {"ATTRIB", make<OdDbAttribute>},
      {"CIRCLE", make<OdDbCircle>},
      {"DICTIONARY", make<OdDbDictionary>},
      {"DIMENSION", make<OdDbDimension>},
      {"ELLIPSE", make<OdDbEllipse>},
      {"HATCH", make<OdDbHatch>},
      {"INSERT", make<OdDbBlockReference>},
      {"LAYER", make<OdDbLayerTableRecord>},
      {"LEADER", make<OdDbLeader>},
      {"LINE", make<OdDbLine>},
      {"LTYPE", make<OdDbLinetypeTableRecord>},
      {"LWPOLYLINE", make<OdDbPolyline>},
      {"MTEXT", make<OdDbMText>},
      {"POINT", make<OdDbPoint>},
      {"POLYLINE", make<OdDb2dPolyline>},
      {"SOLID", make<OdDbSolid>},
      {"SPLINE", make<OdDbSpline>},
      {"STYLE", make<OdDbTextStyleTableRecord>},
      {"TEXT", make<OdDbText>},
      {"TRACE", make<OdDbSolid>},
      {"VIEWPORT", make<OdDbViewport>},
      {"VPORT", make<OdDbViewportTableRecord>},
  };
  return table;
}

}  // namespace

OdDbObjectPtr odMakeObject(const OdDbStub& stub) {
  const auto maker = makers().find(stub.record ? stub.record->type() : std::string_view());
  if (maker != makers().end()) return maker->second();
  return stub.kind == OdDbStub::kEntity ? make<OdDbUnknownEntity>() : make<OdDbUnknownObject>();
}
