#include "od/db/OdDbDrawing.h"

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbEntity.h"
#include "od/db/drawing_loader.h"
#include "od/db/new_record.h"
#include "od/db/object_factory.h"
#include "od/dxf/header_variables.h"

OdDbDrawing::OdDbDrawing(OdDbDatabase& database, dxf::File file)
    : m_database(database), m_file(std::move(file)) {
  countHandles();
  odLoadDrawing(*this);
}

void OdDbDrawing::countHandles() {
  const dxf::HeaderVariables variables(m_file);
  m_writesHandles = m_file.version() >= dxf::R13 || variables.int_or("$HANDLING", 0) == 1;
  std::uint64_t highest = 0;
  for (const dxf::Record& record : m_file.records()) highest = std::max(highest, record.handle());
  if (highest > 0) m_writesHandles = true;
  m_nextHandle = std::max(variables.handle_or("$HANDSEED", 1), highest + 1);
  // Numbers for what the file gives no handle: small ones where there are no handles at all, else far from
  // those that may still be given.
  constexpr std::uint64_t kBeyondHandles = std::uint64_t{1} << 62;
  m_nextInternal = m_writesHandles ? kBeyondHandles : 1;
}

OdDbHandle OdDbDrawing::takeHandle() {
  while (m_byHandle.contains(OdDbHandle(m_nextHandle))) ++m_nextHandle;
  const OdDbHandle handle(m_nextHandle++);
  dxf::HeaderVariables variables(m_file);
  if (variables.handle_or("$HANDSEED", 0) < m_nextHandle) variables.set_handle("$HANDSEED", 5, m_nextHandle);
  return handle;
}

OdDbHandle OdDbDrawing::takeInternalNumber() {
  while (m_byHandle.contains(OdDbHandle(m_nextInternal))) ++m_nextInternal;
  return OdDbHandle(m_nextInternal++);
}

OdDbStub* OdDbDrawing::find(OdDbHandle handle) const {
  const auto found = m_byHandle.find(handle);
  return found == m_byHandle.end() ? nullptr : found->second;
}

OdDbStub& OdDbDrawing::addStub(dxf::Record* record, OdDbStub* owner, OdDbStub::Kind kind) {
  OdDbStub& stub = m_stubs.emplace_back();
  stub.database = &m_database;
  stub.record = record;
  stub.owner = owner;
  stub.kind = kind;
  const OdDbHandle own(record ? record->handle() : 0);
  // Of two objects with one handle the first keeps it.
  stub.handleInFile = !own.isNull() && !m_byHandle.contains(own);
  stub.handle = stub.handleInFile ? own : takeInternalNumber();
  m_byHandle[stub.handle] = &stub;
  return stub;
}

void OdDbDrawing::attach(OdDbStub& stub, OdDbObjectPtr made) {
  made->m_stub = &stub;
  made->m_database = &m_database;
  made->m_record = stub.record;
  stub.object = std::move(made);
}

OdDbObject& OdDbDrawing::object(OdDbStub& stub) {
  if (!stub.object) attach(stub, odMakeObject(stub));
  return *stub.object;
}

OdDbSymbolTable& OdDbDrawing::tableObject(Table table) const {
  return static_cast<OdDbSymbolTable&>(*m_tables[table]->object);
}

void OdDbDrawing::addTable(Table table, dxf::Record* record) {
  OdDbStub& stub = addStub(record, nullptr, OdDbStub::kObject);
  attach(stub, OdDbObjectPtr(new OdDbSymbolTable, kOdRxObjAttach));
  m_tables[table] = &stub;
}

void OdDbDrawing::addTableRecord(Table table, const OdString& name, OdDbStub& record) {
  tableObject(table).addRecord(name, OdDbObjectId(&record));
}

void OdDbDrawing::addSessionRecord(Table table, const OdString& name, OdDbObjectPtr made) {
  dxf::Record& own = made->record();
  own.set_string(*own.find(2, own.body()), name.str());
  OdDbStub& stub = addStub(nullptr, m_tables[table], OdDbStub::kObject);
  attach(stub, std::move(made));
  stub.object->m_record = &own;
  addTableRecord(table, name, stub);
}

OdDbBlockTableRecord& OdDbDrawing::blockObject(OdDbStub& block) const {
  return static_cast<OdDbBlockTableRecord&>(*block.object);
}

OdDbStub& OdDbDrawing::addBlock(const OdString& name, dxf::Record* record) {
  OdDbStub& stub = addStub(record, m_tables[kBlocks], OdDbStub::kObject);
  auto* block = new OdDbBlockTableRecord;
  block->m_name = name;
  attach(stub, OdDbObjectPtr(block, kOdRxObjAttach));
  addTableRecord(kBlocks, name, stub);
  return stub;
}

OdDbStub* OdDbDrawing::block(const OdString& name) const { return tableObject(kBlocks).getAt(name).stub(); }

void OdDbDrawing::setBlockMarks(OdDbStub& block, dxf::Record* begin, dxf::Record* end) {
  OdDbBlockTableRecord& object = blockObject(block);
  if (begin) object.m_begin = begin;
  if (end) object.m_end = end;
}

void OdDbDrawing::addEntity(OdDbStub& block, OdDbStub& entity) {
  blockObject(block).m_entities.push_back(&entity);
}

void OdDbDrawing::dropParts(OdDbStub& block) {
  std::erase_if(blockObject(block).m_entities,
                [&](const OdDbStub* entity) { return entity->owner != &block; });
}

void OdDbDrawing::setSpaces(OdDbStub& model, OdDbStub& paper) {
  m_modelSpace = &model;
  m_paperSpace = &paper;
}

/// Sections are found by a walk through the whole file, and many entities may be appended.
dxf::Record& OdDbDrawing::endOfEntities() {
  if (!m_endOfEntities) m_endOfEntities = &findEndOfEntities();
  return *m_endOfEntities;
}

dxf::Record& OdDbDrawing::findEndOfEntities() {
  dxf::Record* end = nullptr;
  for (const dxf::Section& section : m_file.sections()) {
    if (section.name == "ENTITIES" && section.end) end = section.end;
  }
  if (end) return *end;
  dxf::Record* place = nullptr;
  if (const auto objects = m_file.section("OBJECTS")) place = objects->begin;
  if (dxf::Record* last = m_file.records().last(); !place && last && last->is("EOF")) place = last;
  dxf::Record& begin = m_file.insert_before(place, "SECTION");
  begin.insert_string(1, 2, u"ENTITIES");
  return m_file.insert_before(place, "ENDSEC");
}

OdDbObjectId OdDbDrawing::append(OdDbBlockTableRecord& block, OdDbEntity& entity) {
  OdDbStub& stub = addToFile(block, entity);
  addEntity(*block.m_stub, stub);
  return OdDbObjectId(&stub);
}

void OdDbDrawing::appendPart(OdDbStub& host, OdDbEntity& part) {
  OdDbStub& stub = addToFile(blockObject(*host.owner), part);
  stub.owner = &host;
  host.parts.push_back(&stub);
}

OdDbStub& OdDbDrawing::addToFile(OdDbBlockTableRecord& block, OdDbEntity& entity) {
  const bool inEntities = &block == &blockObject(*m_modelSpace) || &block == &blockObject(*m_paperSpace);
  dxf::Record& place = inEntities || !block.m_end ? endOfEntities() : *block.m_end;
  dxf::Record& record = m_file.insert_before(&place, entity.record().type());
  odRewriteGroups(entity.record(), record);
  if (block.isPaperSpace()) OdDbEntity::markPaperSpace(record);
  if (m_writesHandles) record.set_handle(takeHandle().value());
  if (m_file.version() >= dxf::R13 && block.m_stub->handleInFile) {
    record.set_owner(block.handle().value());
  }
  OdDbStub& stub = addStub(&record, block.m_stub, OdDbStub::kEntity);
  adopt(entity, stub);
  return stub;
}

dxf::Record& OdDbDrawing::endOfObjects() {
  if (const auto objects = m_file.section("OBJECTS"); objects && objects->end) return *objects->end;
  dxf::Record* last = m_file.records().last();
  dxf::Record* place = last && last->is("EOF") ? last : nullptr;
  m_file.insert_before(place, "SECTION").insert_string(1, 2, u"OBJECTS");
  return m_file.insert_before(place, "ENDSEC");
}

OdDbStub& OdDbDrawing::addObject(std::string_view type, OdDbHandle owner, OwnerReaction reaction) {
  dxf::Record& record = m_file.insert_before(&endOfObjects(), type);
  record.set_handle(takeHandle().value());
  if (reaction == kOwnerReacts) {
    record.insert_string(record.size(), 102, u"{ACAD_REACTORS");
    record.insert_handle(record.size(), 330, owner.value());
    record.insert_string(record.size(), 102, u"}");
  }
  record.insert_handle(record.size(), 330, owner.value());
  m_database.setModified(true);
  return addStub(&record, nullptr, OdDbStub::kObject);
}

OdDbObjectId OdDbDrawing::rootDictionary() const {
  const auto objects = m_file.section("OBJECTS");
  dxf::Record* first = objects ? objects->begin->next() : nullptr;
  return first && first->is("DICTIONARY") ? OdDbObjectId(find(OdDbHandle(first->handle()))) : OdDbObjectId();
}

/// The database takes its share in `entity`, which from here on is a view of the stub's record.
void OdDbDrawing::adopt(OdDbEntity& entity, OdDbStub& stub) {
  const std::unique_ptr<dxf::Record> before = std::move(entity.m_own);
  stub.object = OdDbObjectPtr(&entity);
  entity.m_stub = &stub;
  entity.m_database = &m_database;
  entity.m_record = stub.record;
  entity.m_mode = OdDb::kForWrite;
  m_database.addRef();
  entity.recordMoved(*before);
  entity.touch();
}

/// Lets each object that somebody opened settle what it leaves for the moment before a drawing is written.
void OdDbDrawing::settleObjects() {
  const std::size_t count = m_stubs.size();
  for (std::size_t i = 0; i < count; ++i) {
    OdDbStub& stub = m_stubs[i];
    if (!stub.object || stub.erased || !stub.object->isUnsettled()) continue;
    const OdDbObjectPtr open =
        stub.object->isWriteEnabled() ? stub.object : OdDbObjectId(&stub).openObject(OdDb::kForWrite);
    open->settle();
  }
}

std::string OdDbDrawing::write() {
  settleObjects();
  // Erased records leave the list for the time of writing, and come back to their places.
  struct Erased {
    std::unique_ptr<dxf::Record> record;
    dxf::Record* next;
  };
  std::vector<Erased> erased;
  for (OdDbStub& stub : m_stubs) {
    if (!stub.erased || !stub.record) continue;
    dxf::Record* next = stub.record->next();
    erased.push_back({m_file.records().take(*stub.record), next});
  }
  std::string bytes = m_file.write();
  for (auto at = erased.rbegin(); at != erased.rend(); ++at) {
    m_file.records().insert_before(at->next, std::move(at->record));
  }
  return bytes;
}
