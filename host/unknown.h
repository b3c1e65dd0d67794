#pragma once

#include <atomic>
#include <string_view>

#include "od/base/OdSmartPtr.h"

/// Root of the interfaces that the application and its modules hand to each other: counted, and able to tell
/// by name which other interface the same object carries. Hold one in an `OdSmartPtr`.
class IKrUnknown {
 public:
  static constexpr std::string_view kInterfaceName = "IKrUnknown";

  /// The object seen as the interface of that name, with a reference for the caller; null if it has none
  /// such.
  virtual void* queryInterface(std::string_view name) = 0;
  virtual void addRef() = 0;
  /// Gives one reference back; the object ends with the last one.
  virtual void release() = 0;

 protected:
  virtual ~IKrUnknown() = default;
};

/// Counting and interface query for a class that implements `Interface`. A new object starts with one
/// reference, which belongs to its maker. `Interface` names its direct parent as `Parent`, up to
/// `IKrUnknown`.
template <typename Interface>
class CKrUnknownImpl : public Interface {
 public:
  void* queryInterface(std::string_view name) override { return findIn<Interface>(name); }
  void addRef() override { ++m_references; }
  void release() override {
    if (--m_references == 0) delete this;
  }
  int references() const { return m_references; }

 private:
  template <typename Level>
  void* findIn(std::string_view name) {
    if (name == Level::kInterfaceName) {
      addRef();
      return static_cast<Level*>(this);
    }
    if constexpr (requires { typename Level::Parent; }) {
      return findIn<typename Level::Parent>(name);
    } else {
      return nullptr;
    }
  }

  std::atomic<int> m_references{1};
};

/// `object` as an `Interface`; null when it carries none.
template <typename Interface>
OdSmartPtr<Interface> krQuery(IKrUnknown* object) {
  void* found = object ? object->queryInterface(Interface::kInterfaceName) : nullptr;
  return OdSmartPtr<Interface>(static_cast<Interface*>(found), kOdRxObjAttach);
}
