#include "desk/cli/load_module.h"

#include <filesystem>

#include "host/module_loader.h"

namespace {

constexpr const char* kModule = "libscribe.so";

std::filesystem::path moduleFile() {
  const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  const std::filesystem::path beside = folder / kModule;
  return std::filesystem::exists(beside) ? beside : folder.parent_path() / "lib" / kModule;
}

}  // namespace

std::string loadModule() {
  try {
    host::load_module(moduleFile());
    return {};
  } catch (const host::ModuleError& error) {
    return error.what();
  }
}
