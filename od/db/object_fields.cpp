#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbObject.h"
#include "od/db/field_reader.h"
#include "od/db/field_writer.h"

// What hangs on an object: its extension dictionary, in that the dictionary ACAD_FIELD, and in that the FIELD
// objects by name.

namespace {

constexpr std::string_view kExtensionGroup = "ACAD_XDICTIONARY";
constexpr const char16_t* kFields = u"ACAD_FIELD";

/// An empty dictionary that owns what it names.
OdDbStub& addDictionary(OdDbDrawing& drawing, OdDbHandle owner, OdDbDrawing::OwnerReaction reaction) {
  OdDbStub& stub = drawing.addObject("DICTIONARY", owner, reaction);
  dxf::Record& record = *stub.record;
  record.insert_string(record.size(), 100, u"AcDbDictionary");
  record.insert_int(record.size(), 280, 1);
  record.insert_int(record.size(), 281, 1);
  return stub;
}

void nameExtensionDictionary(dxf::Record& record, OdDbHandle dictionary) {
  const dxf::Range preamble = record.preamble();
  const auto own = record.find(5, preamble);
  std::size_t at = own ? *own + 1 : preamble.begin;
  record.insert_string(at++, 102, u"{ACAD_XDICTIONARY");
  record.insert_handle(at++, 360, dictionary.value());
  record.insert_string(at, 102, u"}");
}

}  // namespace

OdDbObjectId OdDbObject::extensionDictionary() const {
  if (!m_stub || !m_record) return {};
  const auto range = m_record->application_group(kExtensionGroup);
  if (!range) return {};
  return m_database->getOdDbObjectId(OdDbHandle(m_record->handle_or(360, *range, 0)));
}

OdDbDictionaryPtr OdDbObject::fieldDictionary(OdDb::OpenMode mode) const {
  const OdDbDictionaryPtr extension = odOpen<OdDbDictionary>(extensionDictionary());
  return extension ? odOpen<OdDbDictionary>(extension->getAt(kFields), mode) : OdDbDictionaryPtr();
}

OdDbDictionaryPtr OdDbObject::needFieldDictionary() {
  if (OdDbDictionaryPtr present = fieldDictionary(OdDb::kForWrite)) return present;
  OdDbDrawing& drawing = m_database->drawing();
  OdDbDictionaryPtr extension = odOpen<OdDbDictionary>(extensionDictionary(), OdDb::kForWrite);
  if (!extension) {
    OdDbStub& made = addDictionary(drawing, handle(), OdDbDrawing::kOwnerKeepsQuiet);
    nameExtensionDictionary(record(), made.handle);
    extension = odOpen<OdDbDictionary>(OdDbObjectId(&made), OdDb::kForWrite);
  }
  const OdDbObjectId fields(&addDictionary(drawing, extension->handle(), OdDbDrawing::kOwnerReacts));
  extension->setAt(kFields, fields);
  return odOpen<OdDbDictionary>(fields, OdDb::kForWrite);
}

/// Those of the object and of its parts.
void OdDbObject::eraseFields(bool erasing) {
  OdDbDrawing& drawing = m_database->drawing();
  for (OdDbStub* part : m_stub->parts)
    if (part->record->application_group(kExtensionGroup)) drawing.object(*part).eraseFields(erasing);
  const OdDbDictionaryPtr fields = fieldDictionary(OdDb::kForRead);
  if (!fields) return;
  for (const auto& [name, id] : fields->entries())
    if (id && id.stub()->record && id.stub()->record->is("FIELD")) odEraseField(drawing, *id.stub(), erasing);
}

OdRxObjectPtr OdDbObject::getField(const OdString& name, OdDb::OpenMode mode) const {
  const OdDbDictionaryPtr fields = fieldDictionary(OdDb::kForRead);
  const OdDbObjectId id = fields ? fields->getAt(name) : OdDbObjectId();
  if (id.isNull() || id.isErased()) return {};
  OdDbObjectPtr object = id.openObject(mode);
  if (!object->record().is("FIELD")) return object;
  if (odFieldIsStale(object->record(), fieldHostText())) return {};
  return odReadField(m_database->drawing(), *id.stub());
}

OdDbObjectId OdDbObject::setField(const OdString& name, const OdDbField& field) {
  assertWriteEnabled();
  if (!field.isContainer()) throw OdError(eInvalidInput);
  setFieldHostText(field);
  const bool keepsFields = m_stub && m_record && m_stub->handleInFile && m_database->version() >= dxf::R13;
  if (!keepsFields) return {};
  OdDbDrawing& drawing = m_database->drawing();
  const OdDbDictionaryPtr fields = needFieldDictionary();
  OdDbObjectId id = fields->getAt(name);
  if (id.isNull() || id.isErased() || !id.stub()->record->is("FIELD")) {
    id = OdDbObjectId(&drawing.addObject("FIELD", fields->handle(), OdDbDrawing::kOwnerReacts));
    fields->setAt(name, id);
  }
  odWriteField(drawing, *id.stub(), field, odTextChecksum(fieldHostText().str()));
  touch();
  return id;
}

void OdDbObject::removeField(const OdString& name) {
  assertWriteEnabled();
  const OdDbDictionaryPtr fields = fieldDictionary(OdDb::kForWrite);
  const OdDbObjectId id = fields ? fields->getAt(name) : OdDbObjectId();
  if (id.isNull()) return;
  if (id.stub()->record && id.stub()->record->is("FIELD")) odEraseField(m_database->drawing(), *id.stub());
  fields->remove(name);
  if (!fields->entries().empty()) return;
  fields->erase();
  const OdDbDictionaryPtr extension = odOpen<OdDbDictionary>(extensionDictionary(), OdDb::kForWrite);
  extension->remove(kFields);
  if (!extension->entries().empty()) return;
  extension->erase();
  const auto group = m_record->application_group(kExtensionGroup);
  m_record->erase(dxf::Range{group->begin - 1, group->end + 1});
  touch();
}
