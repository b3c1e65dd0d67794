#pragma once

#include <vector>

#include "od/db/OdDbSymbolTableRecord.h"
#include "od/ge/OdGePoint3d.h"

class OdDbEntity;

/// A block: a named list of entities in drawing order. Model and paper spaces are blocks, too.
class OdDbBlockTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbBlockTableRecord)

 public:
  OdString getName() const override { return m_name; }
  /// The point of the block that an insert's position means.
  OdGePoint3d origin() const;
  bool isModelSpace() const;
  bool isPaperSpace() const;
  bool isLayout() const { return isModelSpace() || isPaperSpace(); }
  bool isAnonymous() const;
  bool isFromExternalReference() const;
  /// Name of the layout that shows this block; empty for others.
  OdString layoutName() const;

  /// The entities that are not erased, in file order, which is drawing order. Parts of an insert or of a
  /// polyline are not among them.
  std::vector<OdDbObjectId> entities() const;

  /// True when the file defines the block, not only names it.
  bool hasContents() const { return m_begin != nullptr; }

  /// Puts a new entity at the end. The database takes a share in it and gives it a handle, as the file's
  /// version wants; it stays open for write. Throws `OdError(eAlreadyInDb)`, `eNotOpenForWrite`.
  OdDbObjectId appendOdDbEntity(OdDbEntity* entity);

 protected:
  const OdDbSubclass& ownPart() const override;

 private:
  friend class OdDbDrawing;

  OdDbBlockTableRecord() = default;

  OdString m_name;
  dxf::Record* m_begin = nullptr;  ///< BLOCK, null when the file has none for a space
  dxf::Record* m_end = nullptr;    ///< ENDBLK
  std::vector<OdDbStub*> m_entities;
};

using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;
