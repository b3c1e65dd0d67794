#include "od/base/OdRxObject.h"

OdRxClass* OdRxObject::desc() {
  static OdRxClass* record = newOdRxClass({.name = u"OdRxObject",
                                           .dxfName = {},
                                           .appName = {},
                                           .parent = nullptr,
                                           .constructor = nullptr,
                                           .dwgVersion = 0,
                                           .maintenanceVersion = 0,
                                           .proxyFlags = 0});
  return record;
}

OdRxObject* OdRxObject::queryX(const OdRxClass* wanted) const {
  if (!isKindOf(wanted)) return nullptr;
  auto* self = const_cast<OdRxObject*>(this);
  self->addRef();
  return self;
}
