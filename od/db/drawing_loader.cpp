#include "od/db/drawing_loader.h"

#include <functional>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/db/linked_columns.h"

namespace {

using Table = OdDbDrawing::Table;

constexpr std::pair<std::string_view, Table> kTables[] = {{"LAYER", OdDbDrawing::kLayers},
                                                          {"STYLE", OdDbDrawing::kStyles},
                                                          {"LTYPE", OdDbDrawing::kLinetypes},
                                                          {"BLOCK_RECORD", OdDbDrawing::kBlocks},
                                                          {"VPORT", OdDbDrawing::kViewports}};

OdString nameOf(const dxf::Record& record) { return record.string_or(2, record.body(), u""); }

void forEachSection(OdDbDrawing& drawing, std::string_view name,
                    const std::function<void(const dxf::Section&)>& visit) {
  for (const dxf::Section& section : drawing.file().sections()) {
    if (section.name == name) visit(section);
  }
}

/// The record TABLE of each known table; null where the file has none.
void loadTableHeads(OdDbDrawing& drawing) {
  dxf::Record* heads[OdDbDrawing::kTableCount] = {};
  forEachSection(drawing, "TABLES", [&](const dxf::Section& section) {
    for (dxf::Record* r = section.begin; r && r != section.end; r = r->next()) {
      if (!r->is("TABLE")) continue;
      for (const auto& [name, table] : kTables) {
        if (nameOf(*r) == OdString(odToUtf16(name)) && !heads[table]) heads[table] = r;
      }
    }
  });
  for (const auto& [name, table] : kTables) drawing.addTable(table, heads[table]);
}

void loadTableRecord(OdDbDrawing& drawing, dxf::Record& record) {
  for (const auto& [name, table] : kTables) {
    if (!record.is(name)) continue;
    if (table == OdDbDrawing::kBlocks) {
      drawing.addBlock(nameOf(record), &record);
    } else {
      OdDbStub& stub = drawing.addStub(&record, drawing.table(table), OdDbStub::kObject);
      drawing.addTableRecord(table, nameOf(record), stub);
    }
    return;
  }
  drawing.addStub(&record, nullptr, OdDbStub::kObject);
}

void loadTableRecords(OdDbDrawing& drawing) {
  forEachSection(drawing, "TABLES", [&](const dxf::Section& section) {
    for (dxf::Record* r = section.begin->next(); r && r != section.end; r = r->next()) {
      const bool isHead = r->is("TABLE") || r->is("ENDTAB");
      if (!isHead) loadTableRecord(drawing, *r);
    }
  });
}

/// Sorts the records of a list of entities into entities and their parts.
class EntityReader {
 public:
  /// `linking` gets the texts whose further columns are entities of their own.
  EntityReader(OdDbDrawing& drawing, std::vector<OdDbStub*>& linking)
      : m_drawing(drawing), m_linking(linking) {}

  void read(dxf::Record& record, OdDbStub& block) {
    if (m_host && isPart(record)) {
      OdDbStub& part = m_drawing.addStub(&record, m_host, OdDbStub::kEntity);
      m_host->parts.push_back(&part);
      if (record.is("SEQEND")) m_host = nullptr;
      return;
    }
    OdDbStub& stub = m_drawing.addStub(&record, &block, OdDbStub::kEntity);
    m_drawing.addEntity(block, stub);
    if (record.is("MTEXT") && !odLinkedHandles(record).empty()) m_linking.push_back(&stub);
    m_host = record.is("INSERT") || record.is("POLYLINE") ? &stub : nullptr;
  }

  /// Another list begins.
  void restart() { m_host = nullptr; }

 private:
  bool isPart(const dxf::Record& record) const {
    if (record.is("SEQEND")) return true;
    return m_host->record->is("INSERT") ? record.is("ATTRIB") : record.is("VERTEX");
  }

  OdDbDrawing& m_drawing;
  std::vector<OdDbStub*>& m_linking;
  OdDbStub* m_host = nullptr;
};

OdDbStub& blockOf(OdDbDrawing& drawing, dxf::Record& begin) {
  const OdString name = nameOf(begin);
  OdDbStub* known = drawing.block(name);
  // A second block of a name is one of its own, which no insert reaches.
  const bool taken = known && drawing.blockObject(*known).hasContents();
  OdDbStub& block = known && !taken ? *known : drawing.addBlock(name, &begin);
  if (block.record != &begin) drawing.addStub(&begin, &block, OdDbStub::kObject);
  drawing.setBlockMarks(block, &begin, nullptr);
  return block;
}

void loadBlocks(OdDbDrawing& drawing, std::vector<OdDbStub*>& linking) {
  forEachSection(drawing, "BLOCKS", [&](const dxf::Section& section) {
    OdDbStub* block = nullptr;
    EntityReader entities(drawing, linking);
    for (dxf::Record* r = section.begin->next(); r && r != section.end; r = r->next()) {
      if (r->is("BLOCK")) {
        block = &blockOf(drawing, *r);
        entities.restart();
      } else if (r->is("ENDBLK") && block) {
        drawing.addStub(r, block, OdDbStub::kObject);
        drawing.setBlockMarks(*block, nullptr, r);
        block = nullptr;
      } else if (block) {
        entities.read(*r, *block);
      }
    }
  });
}

OdDbStub& spaceOf(OdDbDrawing& drawing, const char16_t* name, const char16_t* oldName) {
  if (OdDbStub* block = drawing.block(name)) return *block;
  if (OdDbStub* block = drawing.block(oldName)) return *block;
  return drawing.addBlock(drawing.file().version() >= dxf::R13 ? name : oldName, nullptr);
}

bool isOnPaper(const dxf::Record& record) { return record.int_or(67, record.body(), 0) == 1; }

void loadEntities(OdDbDrawing& drawing, std::vector<OdDbStub*>& linking) {
  OdDbStub& model = spaceOf(drawing, u"*Model_Space", u"$MODEL_SPACE");
  OdDbStub& paper = spaceOf(drawing, u"*Paper_Space", u"$PAPER_SPACE");
  drawing.setSpaces(model, paper);
  forEachSection(drawing, "ENTITIES", [&](const dxf::Section& section) {
    EntityReader entities(drawing, linking);
    for (dxf::Record* r = section.begin->next(); r && r != section.end; r = r->next()) {
      entities.read(*r, isOnPaper(*r) ? paper : model);
    }
  });
}

void loadObjects(OdDbDrawing& drawing) {
  forEachSection(drawing, "OBJECTS", [&](const dxf::Section& section) {
    for (dxf::Record* r = section.begin->next(); r && r != section.end; r = r->next()) {
      drawing.addStub(r, nullptr, OdDbStub::kObject);
    }
  });
}

void addMissingRecords(OdDbDrawing& drawing) {
  if (!drawing.tableObject(OdDbDrawing::kLayers).has(u"0"))
    drawing.addSessionRecord(OdDbDrawing::kLayers, u"0", odNew<OdDbLayerTableRecord>());
  if (drawing.tableObject(OdDbDrawing::kStyles).records().empty())
    drawing.addSessionRecord(OdDbDrawing::kStyles, u"Standard", odNew<OdDbTextStyleTableRecord>());
}

}  // namespace

void odLoadDrawing(OdDbDrawing& drawing) {
  loadTableHeads(drawing);
  loadTableRecords(drawing);
  addMissingRecords(drawing);
  std::vector<OdDbStub*> linking;
  loadBlocks(drawing, linking);
  loadEntities(drawing, linking);
  odLinkColumns(drawing, linking);
  loadObjects(drawing);
}
