#pragma once

#include <array>
#include <deque>
#include <unordered_map>

#include "od/db/OdDbStub.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/dxf/file.h"

class OdDbBlockTableRecord;
class OdDbEntity;

/// The inside of a database: the file with its records, a stub for each object, and the handles.
class OdDbDrawing {
 public:
  enum Table { kLayers, kStyles, kLinetypes, kBlocks, kViewports, kTableCount };

  OdDbDrawing(OdDbDatabase& database, dxf::File file);

  dxf::File& file() { return m_file; }
  const dxf::File& file() const { return m_file; }

  OdDbStub* find(OdDbHandle handle) const;
  OdDbStub* table(Table table) const { return m_tables[table]; }
  OdDbSymbolTable& tableObject(Table table) const;
  OdDbStub* modelSpace() const { return m_modelSpace; }
  OdDbStub* paperSpace() const { return m_paperSpace; }
  /// The object that `stub` names, made now if it was not yet.
  OdDbObject& object(OdDbStub& stub);

  /// True when new objects of this file are written with a handle.
  bool writesHandles() const { return m_writesHandles; }
  OdDbObjectId append(OdDbBlockTableRecord& block, OdDbEntity& entity);
  /// Writes it into the block where `host` lies, as a part of it that the block does not list.
  void appendPart(OdDbStub& host, OdDbEntity& part);
  /// Whether a new object names its owner as one that is told of changes, too.
  enum OwnerReaction { kOwnerKeepsQuiet, kOwnerReacts };
  /// A new record at the end of the section OBJECTS, with handle and owner and nothing else.
  OdDbStub& addObject(std::string_view type, OdDbHandle owner, OwnerReaction reaction);
  /// The dictionary that all others hang on; null in a drawing without any.
  OdDbObjectId rootDictionary() const;
  /// The file's bytes without the erased records, behind what objects have still to settle.
  std::string write();

  /// For loading.
  OdDbStub& addStub(dxf::Record* record, OdDbStub* owner, OdDbStub::Kind kind);
  void addTableRecord(Table table, const OdString& name, OdDbStub& record);
  void addTable(Table table, dxf::Record* record);
  /// A record that the file lacks and every drawing has; it lives as long as the database.
  void addSessionRecord(Table table, const OdString& name, OdDbObjectPtr record);
  OdDbStub& addBlock(const OdString& name, dxf::Record* record);
  OdDbStub* block(const OdString& name) const;
  OdDbBlockTableRecord& blockObject(OdDbStub& block) const;
  /// The records that begin and end a block; null leaves what was said before.
  void setBlockMarks(OdDbStub& block, dxf::Record* begin, dxf::Record* end);
  void addEntity(OdDbStub& block, OdDbStub& entity);
  /// Takes those out of a block's list that have become parts of another entity: whose owner it is no more.
  /// Costs a walk through the list.
  void dropParts(OdDbStub& block);
  void setSpaces(OdDbStub& model, OdDbStub& paper);

 private:
  /// The entity with a record at the end of the block, and in the drawing.
  OdDbStub& addToFile(OdDbBlockTableRecord& block, OdDbEntity& entity);
  void settleObjects();
  void countHandles();
  OdDbHandle takeHandle();
  OdDbHandle takeInternalNumber();
  void attach(OdDbStub& stub, OdDbObjectPtr made);
  dxf::Record& endOfEntities();
  dxf::Record& findEndOfEntities();
  dxf::Record& endOfObjects();
  void adopt(OdDbEntity& entity, OdDbStub& stub);

  OdDbDatabase& m_database;
  dxf::File m_file;
  std::deque<OdDbStub> m_stubs;
  std::unordered_map<OdDbHandle, OdDbStub*> m_byHandle;
  std::array<OdDbStub*, kTableCount> m_tables{};
  dxf::Record* m_endOfEntities = nullptr;  ///< null until an entity is appended
  OdDbStub* m_modelSpace = nullptr;
  OdDbStub* m_paperSpace = nullptr;
  std::uint64_t m_nextHandle = 1;
  std::uint64_t m_nextInternal = 1;
  bool m_writesHandles = false;
};
