#pragma once

#include <vector>

#include "od/db/OdDbObject.h"

/// What a database knows of an object before anybody opens it. Ids point here.
struct OdDbStub {
  /// Which class a record of an unknown type gets.
  enum Kind { kEntity, kObject };

  OdDbDatabase* database = nullptr;
  OdDbHandle handle;
  bool handleInFile = false;  ///< false for an internal number
  Kind kind = kObject;
  bool erased = false;
  dxf::Record* record = nullptr;  ///< null for what the file does not write down
  OdDbStub* owner = nullptr;      ///< null where the handle in the record tells it
  /// Attributes, vertices and the closing mark of a compound entity; the further columns of a text.
  std::vector<OdDbStub*> parts;
  OdDbObjectPtr object;  ///< made when it is opened first
};
