#pragma once

#include "od/base/OdSmartPtr.h"
#include "od/base/OdString.h"
#include "od/base/export.h"

class OdRxObject;

/// Makes a new object of a class; the caller owns the one reference it comes with.
using OdPseudoConstructor = OdSmartPtr<OdRxObject> (*)();

/// What is known of a class at run time. Records live until the program ends or `deleteOdRxClass` takes them
/// away.
class SCRIBE_EXPORT OdRxClass {
 public:
  struct Description {                  ///< what a class is registered with
    OdString name{};                    ///< class name, unique in the program
    OdString dxfName{};                 ///< name in drawing files, empty where the class is not written
    OdString appName{};                 ///< the application text of the class record
    OdRxClass* parent = nullptr;        ///< record of the base class, null for `OdRxObject`
    OdPseudoConstructor constructor{};  ///< null for abstract classes
    int dwgVersion = 0;
    int maintenanceVersion = 0;
    unsigned proxyFlags = 0;
  };

  explicit OdRxClass(Description description) : m_description(std::move(description)) {}  ///< unregistered

  const OdString& name() const { return m_description.name; }        ///< see `Description`
  const OdString& dxfName() const { return m_description.dxfName; }  ///< see `Description`
  const OdString& appName() const { return m_description.appName; }  ///< see `Description`
  OdRxClass* myParent() const { return m_description.parent; }       ///< of the base class; null at the root
  int getClassVersion() const { return m_description.dwgVersion; }   ///< see `Description`
  int getMaintenanceVersion() const { return m_description.maintenanceVersion; }  ///< see `Description`
  unsigned proxyFlags() const { return m_description.proxyFlags; }                ///< see `Description`

  /// True for `other` itself and for every class below it.
  bool isDerivedFrom(const OdRxClass* other) const;

  /// A new object; throws `OdError(eNotApplicable)` for an abstract class.
  OdSmartPtr<OdRxObject> create() const;

 private:
  Description m_description;
};

/// Registers a class. Throws `OdError` when a class of the name exists.
SCRIBE_EXPORT OdRxClass* newOdRxClass(OdRxClass::Description description);

/// Takes a class out of the register and destroys its record. No object of the class may be left.
SCRIBE_EXPORT void deleteOdRxClass(OdRxClass* record);

/// The record registered under `name`, or null.
SCRIBE_EXPORT OdRxClass* odrxFindClass(std::u16string_view name);
