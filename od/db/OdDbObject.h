#pragma once

#include <memory>

#include "od/base/OdRxObject.h"
#include "od/db/OdDb.h"
#include "od/db/OdDbGroupEditor.h"
#include "od/db/OdDbObjectId.h"
#include "od/gi/OdGiDrawable.h"

class OdDbDwgFiler;
class OdDbDxfFiler;
class OdDbDictionary;
class OdDbField;

/// Anything that a drawing database keeps. It is a view: getters read the groups of its file record, setters
/// change them in place, and a value equal to the present one changes nothing.
///
/// The database owns its objects; a smart pointer from outside keeps an object *open*, and the last one of
/// them closes it. An object that was made with `new` and is not in a database is its maker's own and may
/// always be read and written.
class OdDbObject : public OdGiDrawable {
  ODRX_DECLARE_MEMBERS(OdDbObject)

 public:
  /// Null for an object outside the database.
  OdDbObjectId objectId() const { return OdDbObjectId(m_stub); }
  OdDbHandle handle() const { return objectId().handle(); }
  /// The object that holds this one: the block of an entity, the table of a record, the insert of an
  /// attribute.
  OdDbObjectId ownerId() const;
  /// The database it lies in, or got its defaults from; null when there is none.
  OdDbDatabase* database() const { return m_database; }
  bool isDBRO() const { return m_stub != nullptr; }

  bool isReadEnabled() const;
  bool isWriteEnabled() const;
  /// Throws `OdError(eNotOpenForRead)`, or `eWasErased` for what was erased and not opened as such.
  void assertReadEnabled() const;
  /// Throws `OdError(eNotOpenForWrite)`.
  void assertWriteEnabled() const;
  /// From read to write. Throws `OdError(eWasOpenForWrite)` when another writer has the object.
  void upgradeOpen();
  /// From write to read.
  void downgradeOpen();

  /// An object of the same class with the same groups, outside the database and looking things up there. It
  /// is for trying out and showing what the object might become: it bears the same handle and is not for
  /// appending.
  OdSmartPtr<OdDbObject> clone() const;
  /// Takes the object out of the drawing, or back in while the database lives.
  void erase(bool erasing = true);
  bool isErased() const;
  /// True when something of the object was changed since the file was read.
  bool isModified() const;

  /// The field that the extension dictionary holds under `name` ("TEXT"); null when there is none, or when
  /// the text was changed since without it. A value that is no field comes back as what it is.
  virtual OdRxObjectPtr getField(const OdString& name, OdDb::OpenMode mode = OdDb::kForRead) const;
  /// Takes `field`, a container (`OdDbField::kTextField`), under `name`: the object shows its text, with what
  /// the children show. In the drawing each field becomes an object; those that were read from this object's
  /// field keep theirs. A drawing of a version without such objects keeps the text alone, and null is given.
  /// Throws `OdError(eInvalidInput)` for what is no container.
  OdDbObjectId setField(const OdString& name, const OdDbField& field);
  /// Takes the field out, with its objects; the text stays.
  virtual void removeField(const OdString& name);
  /// The extension dictionary, or null.
  OdDbObjectId extensionDictionary() const;

  /// For classes that are no views of a record: the groups of their own. Return `eOk`, or `eMakeMeProxy` when
  /// the subclass marker is missing.
  virtual OdResult dxfInFields(OdDbDxfFiler* filer);
  virtual void dxfOutFields(OdDbDxfFiler* filer) const;
  virtual OdResult dwgInFields(OdDbDwgFiler* filer);
  virtual void dwgOutFields(OdDbDwgFiler* filer) const;
  OdResult dxfIn(OdDbDxfFiler* filer) { return dxfInFields(filer); }
  void dxfOut(OdDbDxfFiler* filer) const { dxfOutFields(filer); }
  OdResult dwgIn(OdDbDwgFiler* filer) { return dwgInFields(filer); }
  void dwgOut(OdDbDwgFiler* filer) const { dwgOutFields(filer); }

  void release() override;

  bool isPersistent() const override { return isDBRO(); }

 protected:
  OdDbObject() = default;

  friend class OdDbDrawing;
  friend class OdDbObjectId;

  /// The file record. That of an object outside the database is made on first use. Throws
  /// `OdError(eNotInDatabase)` for one of the few objects that have none.
  dxf::Record& record() const;
  /// The groups that a new object of this class starts with.
  virtual std::unique_ptr<dxf::Record> newRecord() const;
  /// Lends `database` to an object outside it, for looking things up.
  void setDatabase(OdDbDatabase* database) { m_database = database; }
  /// Says that something changed that is to be saved.
  void touch();

  /// The groups of one part of the record, for reading.
  OdDbGroups groups(const OdDbSubclass& part) const;
  /// The same for writing: asserts that it is allowed.
  OdDbGroupEditor edit(const OdDbSubclass& part);

  /// The text that a field of this object stands for, as the file has it; empty for what has no text.
  virtual OdString fieldHostText() const { return {}; }
  /// Shows the text of a container; nothing happens for what has no text.
  virtual void setFieldHostText(const OdDbField&) {}
  /// True when the object has something left to do before its drawing is written.
  virtual bool isUnsettled() const { return false; }
  /// Does it. Called before each time the drawing is written, with the object open for write.
  virtual void settle() {}
  /// Called when the object's groups have been written anew in the manner of the file that it came into;
  /// `before` is the record as it was.
  virtual void recordMoved(const dxf::Record& before);

 private:
  static OdSmartPtr<OdDbObject> open(OdDbStub& stub, OdDb::OpenMode mode);
  /// The dictionary of this object's fields, null without one.
  OdSmartPtr<OdDbDictionary> fieldDictionary(OdDb::OpenMode mode) const;
  OdSmartPtr<OdDbDictionary> needFieldDictionary();
  void eraseFields(bool erasing);

  OdDbStub* m_stub = nullptr;
  OdDbDatabase* m_database = nullptr;
  mutable dxf::Record* m_record = nullptr;     ///< in the file's list, or `m_own`
  mutable std::unique_ptr<dxf::Record> m_own;  ///< of an object outside the database
  OdDb::OpenMode m_mode = OdDb::kNotOpen;      ///< of an object inside
};

using OdDbObjectPtr = OdSmartPtr<OdDbObject>;
