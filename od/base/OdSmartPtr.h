#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "od/base/OdError.h"

/// Whether a counted pointer made from a raw one takes over the raw pointer's count or adds one of its own.
enum OdSmartPtrOwnership { kOdRxObjAddRef, kOdRxObjAttach };

/// A counted pointer to an object with `addRef` and `release`, such as `OdRxObject`.
/// Using a null pointer throws `OdError(eNullObjectPointer)`.
template <typename T>
class OdSmartPtr {
 public:
  OdSmartPtr() = default;        ///< null
  OdSmartPtr(std::nullptr_t) {}  ///< null
  OdSmartPtr(T* object, OdSmartPtrOwnership ownership = kOdRxObjAddRef) : m_object(object) {
    if (m_object && ownership == kOdRxObjAddRef) m_object->addRef();
  }
  OdSmartPtr(const OdSmartPtr& other) : OdSmartPtr(other.m_object) {}  ///< adds a reference
  OdSmartPtr(OdSmartPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
  /// From a pointer to a derived class.
  template <typename U>
  requires std::is_convertible_v<U*, T*> OdSmartPtr(const OdSmartPtr<U>& other)
      : OdSmartPtr(static_cast<T*>(other.get())) {}
  ~OdSmartPtr() {
    if (m_object) m_object->release();
  }

  OdSmartPtr& operator=(OdSmartPtr other) noexcept {  ///< gives the reference held before back
    std::swap(m_object, other.m_object);
    return *this;
  }

  /// Gives the reference back before the pointer's own end.
  void release() { *this = OdSmartPtr(); }

  T* get() const { return m_object; }                             ///< without a reference; may be null
  bool isNull() const { return m_object == nullptr; }             ///< whether it holds no object
  explicit operator bool() const { return m_object != nullptr; }  ///< whether it holds an object
  T* operator->() const { return checked(); }                     ///< throws for null
  T& operator*() const { return *checked(); }                     ///< throws for null

  friend bool operator==(const OdSmartPtr& a, const OdSmartPtr& b) { return a.m_object == b.m_object; }
  friend bool operator==(const OdSmartPtr& a, std::nullptr_t) { return a.m_object == nullptr; }

 private:
  T* checked() const {
    if (!m_object) throw OdError(eNullObjectPointer);
    return m_object;
  }

  T* m_object = nullptr;
};
