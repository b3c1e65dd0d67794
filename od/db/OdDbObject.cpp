#include "od/db/OdDbObject.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/new_record.h"

ODRX_DEFINE_ABSTRACT_MEMBERS(OdDbObject, OdGiDrawable)

OdDbObjectPtr OdDbObject::open(OdDbStub& stub, OdDb::OpenMode mode) {
  OdDbObject& object = stub.database->drawing().object(stub);
  if (mode == OdDb::kForWrite && object.m_mode == OdDb::kForWrite) throw OdError(eWasOpenForWrite);
  if (object.m_mode == OdDb::kNotOpen) stub.database->addRef();
  object.m_mode = std::max(object.m_mode, mode);
  return OdDbObjectPtr(&object);
}

void OdDbObject::release() {
  const bool closes = m_stub && m_mode != OdDb::kNotOpen && numRefs() == 2;
  if (!closes) return OdRxObject::release();
  // One reference is left, the database's own.
  m_mode = OdDb::kNotOpen;
  OdDbDatabase* database = m_database;
  OdRxObject::release();
  database->release();  // may end the database, and this object with it
}

OdDbObjectId OdDbObject::ownerId() const {
  if (!m_stub) return {};
  if (m_stub->owner || !m_stub->record) return OdDbObjectId(m_stub->owner);
  return m_database->getOdDbObjectId(OdDbHandle(m_stub->record->owner()));
}

bool OdDbObject::isReadEnabled() const { return !m_stub || m_mode != OdDb::kNotOpen; }

bool OdDbObject::isWriteEnabled() const { return !m_stub || m_mode == OdDb::kForWrite; }

void OdDbObject::assertReadEnabled() const {
  if (!isReadEnabled()) throw OdError(eNotOpenForRead);
}

void OdDbObject::assertWriteEnabled() const {
  if (!isWriteEnabled()) throw OdError(eNotOpenForWrite);
}

void OdDbObject::upgradeOpen() {
  if (!m_stub) return;
  assertReadEnabled();
  if (m_mode == OdDb::kForWrite) throw OdError(eWasOpenForWrite);
  m_mode = OdDb::kForWrite;
}

void OdDbObject::downgradeOpen() {
  if (!m_stub) return;
  assertWriteEnabled();
  m_mode = OdDb::kForRead;
}

void OdDbObject::erase(bool erasing) {
  assertWriteEnabled();
  if (!m_stub || m_stub->erased == erasing) return;
  m_stub->erased = erasing;
  for (OdDbStub* part : m_stub->parts) part->erased = erasing;
  eraseFields(erasing);
  touch();
}

bool OdDbObject::isErased() const { return m_stub && m_stub->erased; }

bool OdDbObject::isModified() const { return record().changed() || isErased(); }

void OdDbObject::touch() {
  if (m_stub && m_database) m_database->setModified(true);
}

dxf::Record& OdDbObject::record() const {
  if (m_record) return *m_record;
  if (m_stub) throw OdError(eNotInDatabase);
  m_own = newRecord();
  m_record = m_own.get();
  return *m_record;
}

OdDbObjectPtr OdDbObject::clone() const {
  assertReadEnabled();
  const auto copy = odCastOrThrow<OdDbObject>(isA()->create());
  copy->m_own = std::make_unique<dxf::Record>(record());
  copy->m_record = copy->m_own.get();
  copy->m_database = m_database;
  return copy;
}

std::unique_ptr<dxf::Record> OdDbObject::newRecord() const {
  const OdString& name = isA()->dxfName();
  return odNewRecord(name.isEmpty() ? isA()->name().toUtf8() : name.toUtf8(), {});
}

void OdDbObject::recordMoved(const dxf::Record&) {}

OdDbGroups OdDbObject::groups(const OdDbSubclass& part) const {
  assertReadEnabled();
  return OdDbGroups(record(), part);
}

OdDbGroupEditor OdDbObject::edit(const OdDbSubclass& part) {
  assertWriteEnabled();
  return OdDbGroupEditor(record(), part, [this] { touch(); });
}

OdResult OdDbObject::dxfInFields(OdDbDxfFiler*) { return eOk; }

void OdDbObject::dxfOutFields(OdDbDxfFiler*) const {}

OdResult OdDbObject::dwgInFields(OdDbDwgFiler*) { return eOk; }

void OdDbObject::dwgOutFields(OdDbDwgFiler*) const {}
