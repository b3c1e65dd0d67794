#pragma once

#include <functional>

#include "od/base/OdSmartPtr.h"
#include "od/db/OdDb.h"
#include "od/db/OdDbHandle.h"

class OdDbDatabase;
class OdDbObject;
struct OdDbStub;

/// Names an object of a database for as long as that database lives. Copying it opens nothing.
class OdDbObjectId {
 public:
  static const OdDbObjectId kNull;

  OdDbObjectId() = default;
  /// For the database, which owns the stubs.
  explicit OdDbObjectId(OdDbStub* stub) : m_stub(stub) {}

  bool isNull() const { return m_stub == nullptr; }
  explicit operator bool() const { return !isNull(); }
  bool isErased() const;
  /// Null for a null id.
  OdDbDatabase* database() const;
  /// The handle; for an object whose file gives it none, or one that is taken, an internal number.
  OdDbHandle handle() const;
  OdDbHandle getHandle() const { return handle(); }

  /// Opens the object: it stays open until the last smart pointer to it goes.
  /// Throws `OdError`: `eNullObjectId`, `eWasErased` (unless `openErased`), and `eWasOpenForWrite` when the
  /// object is wanted for write and another writer has it. Reading beside a writer is allowed.
  OdSmartPtr<OdDbObject> openObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
  OdSmartPtr<OdDbObject> safeOpenObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;

  /// For the database.
  OdDbStub* stub() const { return m_stub; }

  friend bool operator==(const OdDbObjectId& a, const OdDbObjectId& b) { return a.m_stub == b.m_stub; }
  friend bool operator<(const OdDbObjectId& a, const OdDbObjectId& b) {
    return std::less<OdDbStub*>{}(a.m_stub, b.m_stub);
  }

 private:
  OdDbStub* m_stub = nullptr;
};

template <>
struct std::hash<OdDbObjectId> {
  std::size_t operator()(const OdDbObjectId& id) const noexcept { return std::hash<OdDbStub*>{}(id.stub()); }
};
