#include "od/db/OdDbObjectId.h"

#include "od/db/OdDbDrawing.h"

const OdDbObjectId OdDbObjectId::kNull;

bool OdDbObjectId::isErased() const { return m_stub && m_stub->erased; }

OdDbDatabase* OdDbObjectId::database() const { return m_stub ? m_stub->database : nullptr; }

OdDbHandle OdDbObjectId::handle() const { return m_stub ? m_stub->handle : OdDbHandle(); }

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode mode, bool openErased) const {
  if (!m_stub) throw OdError(eNullObjectId);
  if (m_stub->erased && !openErased) throw OdError(eWasErased);
  return OdDbObject::open(*m_stub, mode);
}

OdDbObjectPtr OdDbObjectId::safeOpenObject(OdDb::OpenMode mode, bool openErased) const {
  return openObject(mode, openErased);
}
