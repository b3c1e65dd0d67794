#include "host/module_loader.h"

#include <dlfcn.h>

#include <string>

namespace host {

void load_module(const std::filesystem::path& file) {
  if (!std::filesystem::exists(file))
    throw ModuleError("The module " + file.string() + " cannot be loaded: there is no such file.");
  if (dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) return;
  const char* reason = dlerror();
  throw ModuleError("The module " + file.string() +
                    " cannot be loaded: " + (reason ? reason : "the loader gives no reason") + ".");
}

}  // namespace host
