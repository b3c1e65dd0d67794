#include "host/application.h"
#include "host/exports.h"
#include "host/running_application.h"

// The four exports by which a loaded module finds its way to this program. They have to stand in the program
// itself: a module looks there first.

namespace {

void update_application() {
  if (HostApplication* application = host::running_application()) application->updateNow();
}

}  // namespace

extern "C" {

/// The main module is the program itself.
__attribute__((visibility("default"))) const char16_t* GetMainDllNameW() { return u""; }

__attribute__((visibility("default"))) void* GetMainDllInstanceEx() {
  return host::loaded_modules().module("");
}

__attribute__((visibility("default"))) ICmdFactory* new_ICmdFactory() {
  ICmdFactory& factory = host::command_factory();
  factory.addRef();
  return &factory;
}

__attribute__((visibility("default"))) host::HostFunction get_host_funcptr(int number) {
  if (number == host::kHostApplication)
    return reinterpret_cast<host::HostFunction>(&host::running_application);
  if (number == host::kHostUpdate) return &update_application;
  return nullptr;
}

}  // extern "C"
