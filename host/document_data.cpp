#include "host/document_data.h"

#include <vector>

namespace {

/// Reactors in the order in which they came. Made before the first of them, so it outlives them all.
std::vector<HostApDocManagerReactor*>& reactors() {
  static std::vector<HostApDocManagerReactor*> all;
  return all;
}

}  // namespace

HostApDocManagerReactor::HostApDocManagerReactor() { reactors().push_back(this); }

HostApDocManagerReactor::~HostApDocManagerReactor() { std::erase(reactors(), this); }

void host::tell_document_goes(const HostDocument& document) {
  for (HostApDocManagerReactor* reactor : std::vector(reactors())) reactor->documentToBeDestroyed(document);
}
