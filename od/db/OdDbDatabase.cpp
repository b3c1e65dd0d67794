#include "od/db/OdDbDatabase.h"

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/dxf/atomic_save.h"
#include "od/dxf/new_drawing.h"
#include "od/fonts/OdFontLibrary.h"

OdRxClass* OdDbDatabase::desc() {
  static OdRxClass* record = newOdRxClass({.name = "OdDbDatabase",
                                           .dxfName = {},
                                           .appName = {},
                                           .parent = OdRxObject::desc(),
                                           .constructor = nullptr,
                                           .dwgVersion = 0,
                                           .maintenanceVersion = 0,
                                           .proxyFlags = 0});
  return record;
}

OdDbDatabase::~OdDbDatabase() = default;

OdDbDatabasePtr OdDbDatabase::fromFile(dxf::File file, const OdString& name) {
  OdDbDatabasePtr database(new OdDbDatabase, kOdRxObjAttach);
  database->m_fileName = name;
  database->m_drawing = std::make_unique<OdDbDrawing>(*database, std::move(file));
  return database;
}

OdDbDatabasePtr OdDbDatabase::readFile(const std::filesystem::path& path) {
  OdDbDatabasePtr database = readBytes(dxf::load_bytes(path), path.string());
  database->m_path = path;
  return database;
}

OdDbDatabasePtr OdDbDatabase::readBytes(std::string bytes, std::string name) {
  const OdString fileName = odToUtf16(name);
  return fromFile(dxf::File::read(std::move(bytes), std::move(name)), fileName);
}

OdDbDatabasePtr OdDbDatabase::createEmpty(dxf::Version version) {
  return fromFile(dxf::new_drawing(version), {});
}

void OdDbDatabase::writeFile(const std::filesystem::path& path) {
  dxf::atomic_save(path, writeBytes());
  m_fileName = odToUtf16(path.string());
  m_path = path;
  m_modified = false;
}

std::string OdDbDatabase::writeBytes() const { return m_drawing->write(); }

OdString OdDbDatabase::getFilename() const { return m_fileName; }

dxf::Version OdDbDatabase::version() const { return m_drawing->file().version(); }

OdDbObjectId OdDbDatabase::getModelSpaceId() const { return OdDbObjectId(m_drawing->modelSpace()); }

OdDbObjectId OdDbDatabase::getPaperSpaceId() const { return OdDbObjectId(m_drawing->paperSpace()); }

OdDbObjectId OdDbDatabase::getActiveSpaceId() const {
  if (m_activeSpace) return m_activeSpace;
  return getSysVarInt(u"TILEMODE", 1) == 0 ? getPaperSpaceId() : getModelSpaceId();
}

void OdDbDatabase::setActiveSpaceId(OdDbObjectId space) {
  const auto block = odCast<OdDbBlockTableRecord>(space.openObject());
  if (!block || !block->isLayout()) throw OdError(eInvalidInput);
  m_activeSpace = space;
}

OdDbObjectId OdDbDatabase::getLayerTableId() const {
  return OdDbObjectId(m_drawing->table(OdDbDrawing::kLayers));
}

OdDbObjectId OdDbDatabase::getTextStyleTableId() const {
  return OdDbObjectId(m_drawing->table(OdDbDrawing::kStyles));
}

OdDbObjectId OdDbDatabase::getLinetypeTableId() const {
  return OdDbObjectId(m_drawing->table(OdDbDrawing::kLinetypes));
}

OdDbObjectId OdDbDatabase::getBlockTableId() const {
  return OdDbObjectId(m_drawing->table(OdDbDrawing::kBlocks));
}

OdDbObjectId OdDbDatabase::getViewportTableId() const {
  return OdDbObjectId(m_drawing->table(OdDbDrawing::kViewports));
}

OdDbObjectId OdDbDatabase::textStyleOrStandard(const OdString& name) const {
  const OdDbSymbolTable& styles = m_drawing->tableObject(OdDbDrawing::kStyles);
  for (const OdString& wanted : {name, OdString(u"Standard")}) {
    if (const OdDbObjectId style = styles.getAt(wanted)) return style;
  }
  const std::vector<OdDbObjectId> all = styles.records();
  return all.empty() ? OdDbObjectId() : all.front();
}

OdDbObjectId OdDbDatabase::getTEXTSTYLE() const {
  return textStyleOrStandard(getSysVarString(u"TEXTSTYLE", u"Standard"));
}

OdDbObjectId OdDbDatabase::getCLAYER() const {
  const OdDbSymbolTable& layers = m_drawing->tableObject(OdDbDrawing::kLayers);
  const OdDbObjectId current = layers.getAt(getSysVarString(u"CLAYER", u"0"));
  return current ? current : layers.getAt(u"0");
}

OdDbObjectId OdDbDatabase::getOdDbObjectId(OdDbHandle handle) const {
  return handle.isNull() ? OdDbObjectId() : OdDbObjectId(m_drawing->find(handle));
}

OdFontLibrary& OdDbDatabase::fontLibrary() const {
  if (m_fonts) return *m_fonts;
  if (!m_ownFonts) m_ownFonts = std::make_shared<OdFontLibrary>();
  return *m_ownFonts;
}
