#pragma once

#include "host/unknown.h"

/// What other products that happen to be in the same process offer. Nobody may count on any of it: it is
/// looked up when it is needed, and its absence is no fault.
namespace host {

/// Offers an object's interfaces to all modules for as long as the offer lives.
class SiblingOffer {
 public:
  /// `object` has to outlive the offer.
  explicit SiblingOffer(IKrUnknown& object);
  ~SiblingOffer();
  SiblingOffer(const SiblingOffer&) = delete;
  SiblingOffer& operator=(const SiblingOffer&) = delete;

 private:
  IKrUnknown& m_object;
};

/// The interface of that name from the newest offer that has it, with a reference for the caller; null when
/// nobody offers it.
void* find_sibling(std::string_view interface_name);

/// The sibling product's `Interface`; null when it is not there.
template <typename Interface>
OdSmartPtr<Interface> sibling() {
  return OdSmartPtr<Interface>(static_cast<Interface*>(find_sibling(Interface::kInterfaceName)),
                               kOdRxObjAttach);
}

}  // namespace host
