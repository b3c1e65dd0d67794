#include "host/sibling.h"

#include <vector>

namespace {

std::vector<IKrUnknown*>& offers() {
  static std::vector<IKrUnknown*> offered;
  return offered;
}

}  // namespace

namespace host {

SiblingOffer::SiblingOffer(IKrUnknown& object) : m_object(object) { offers().push_back(&object); }

SiblingOffer::~SiblingOffer() { std::erase(offers(), &m_object); }

void* find_sibling(std::string_view interface_name) {
  for (auto offer = offers().rbegin(); offer != offers().rend(); ++offer)
    if (void* found = (*offer)->queryInterface(interface_name)) return found;
  return nullptr;
}

}  // namespace host
