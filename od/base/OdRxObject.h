#pragma once

#include <atomic>

#include "od/base/OdRxClass.h"
#include "od/base/export.h"

/// Root of all counted objects. A new object starts with one reference, which belongs to its maker.
class SCRIBE_EXPORT OdRxObject {
 public:
  OdRxObject(const OdRxObject&) = delete;
  OdRxObject& operator=(const OdRxObject&) = delete;

  /// The record of `OdRxObject`.
  static OdRxClass* desc();

  /// The record of the object's own class.
  virtual OdRxClass* isA() const { return desc(); }

  /// This object seen as `wanted`, with a reference for the caller; null when it is of another class.
  virtual OdRxObject* queryX(const OdRxClass* wanted) const;

  bool isKindOf(const OdRxClass* wanted) const { return isA()->isDerivedFrom(wanted); }  ///< or below

  virtual void addRef() { ++m_references; }  ///< one more reference, for the caller to give back
  /// Gives one reference back; the object ends with the last one.
  virtual void release() {
    if (--m_references == 0) odrxFree();
  }
  int numRefs() const { return m_references; }  ///< references that are held now

 protected:
  OdRxObject() = default;
  virtual ~OdRxObject() = default;

  /// Destroys the object. Called once, when the last reference is gone.
  virtual void odrxFree() { delete this; }

 private:
  std::atomic<int> m_references{1};
};

using OdRxObjectPtr = OdSmartPtr<OdRxObject>;  ///< a counted object of any class

/// `object` as a `T`, or null when it is of another class or null itself.
template <typename T>
OdSmartPtr<T> odCast(const OdRxObject* object) {
  OdRxObject* found = object ? object->queryX(T::desc()) : nullptr;
  return OdSmartPtr<T>(static_cast<T*>(found), kOdRxObjAttach);
}

template <typename T, typename U>
OdSmartPtr<T> odCast(const OdSmartPtr<U>& object) {  ///< the same from a counted pointer
  return odCast<T>(object.get());
}

/// `object` as a `T`; throws `OdError_NotThatKindOfClass` for another class. Null stays null.
template <typename T, typename U>
OdSmartPtr<T> odCastOrThrow(const OdSmartPtr<U>& object) {
  OdSmartPtr<T> result = odCast<T>(object);
  if (object && !result)
    throw OdError_NotThatKindOfClass(object->isA()->name().toUtf8(), T::desc()->name().toUtf8());
  return result;
}

/// A new `T` in a pointer that owns its one reference.
template <typename T, typename... Arguments>
OdSmartPtr<T> odNew(Arguments&&... arguments) {
  return OdSmartPtr<T>(new T(std::forward<Arguments>(arguments)...), kOdRxObjAttach);
}

/// Declares `desc` and `isA` in the body of a class.
#define ODRX_DECLARE_MEMBERS(ClassName) \
 public:                                \
  static OdRxClass* desc();             \
  OdRxClass* isA() const override { return desc(); }

/// Defines `desc` of a class that can be created; the record is made and registered on first use.
#define ODRX_DEFINE_MEMBERS(ClassName, ParentName, DxfName)                                \
  OdRxClass* ClassName::desc() {                                                           \
    static OdRxClass* record =                                                             \
        newOdRxClass({.name = #ClassName,                                                  \
                      .dxfName = DxfName,                                                  \
                      .appName = {},                                                       \
                      .parent = ParentName::desc(),                                        \
                      .constructor = []() -> OdRxObjectPtr { return odNew<ClassName>(); }, \
                      .dwgVersion = 0,                                                     \
                      .maintenanceVersion = 0,                                             \
                      .proxyFlags = 0});                                                   \
    return record;                                                                         \
  }

/// The same for an abstract class.
#define ODRX_DEFINE_ABSTRACT_MEMBERS(ClassName, ParentName)                \
  OdRxClass* ClassName::desc() {                                           \
    static OdRxClass* record = newOdRxClass({.name = #ClassName,           \
                                             .dxfName = {},                \
                                             .appName = {},                \
                                             .parent = ParentName::desc(), \
                                             .constructor = nullptr,       \
                                             .dwgVersion = 0,              \
                                             .maintenanceVersion = 0,      \
                                             .proxyFlags = 0});            \
    return record;                                                         \
  }
