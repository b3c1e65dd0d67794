#pragma once

#include <vector>

#include "od/db/OdDbObject.h"

/// What a database knows of an object before anybody opens it. Ids point here.
struct OdDbStub {
  OdDbDatabase* database = nullptr;
  OdDbHandle handle;
  bool internalHandle = false;    ///< the handle is not, or not only, this object's in the file
  dxf::Record* record = nullptr;  ///< null for what the file does not write down
  OdDbStub* owner = nullptr;      ///< null for what owns itself, and for what the handle of its owner tells
  std::vector<OdDbStub*> parts;   ///< attributes, vertices and the closing mark of a compound entity
  OdDbObjectPtr object;           ///< made when it is opened first
  bool erased = false;
};
