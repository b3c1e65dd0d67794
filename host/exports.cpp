#include "host/exports.h"

#include "host/application.h"

#include <dlfcn.h>

#include <string>

#include "od/base/unicode.h"

namespace host {
namespace {

void* already_loaded(const std::string& file) { return dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD); }

class ProcessModules : public LoadedModules {
 public:
  void* module(std::string_view name) const override {
    if (name.empty()) return dlopen(nullptr, RTLD_NOW);
    const std::string text(name);
    void* found = already_loaded(text);
    return found ? found : already_loaded("lib" + text + ".so");
  }
  void* symbol(void* module, const char* name) const override { return dlsym(module, name); }
};

template <typename Function>
Function find_export(const LoadedModules& modules, void* module, const char* name) {
  return module ? reinterpret_cast<Function>(modules.symbol(module, name)) : nullptr;
}

HostFunction host_function(HostFunctionNumber number) {
  const LoadedModules& modules = loaded_modules();
  const auto find =
      find_export<GetHostFunctionFunction>(modules, find_main_module(modules), "get_host_funcptr");
  return find ? find(number) : nullptr;
}

}  // namespace

const LoadedModules& loaded_modules() {
  static const ProcessModules modules;
  return modules;
}

void* find_main_module(const LoadedModules& modules) {
  const auto main_name = find_export<GetMainDllNameFunction>(modules, modules.module(""), "GetMainDllNameW");
  if (main_name) return modules.module(odToUtf8(main_name()));
  if (void* view = modules.module("shellview")) return view;
  const auto instance =
      find_export<GetMainDllInstanceFunction>(modules, modules.module("shellapp"), "GetMainDllInstanceEx");
  return instance ? instance() : nullptr;
}

OdSmartPtr<ICmdFactory> find_command_factory(const LoadedModules& modules) {
  const auto make =
      find_export<NewCommandFactoryFunction>(modules, find_main_module(modules), "new_ICmdFactory");
  return make ? OdSmartPtr<ICmdFactory>(make(), kOdRxObjAttach) : nullptr;
}

bool register_command(std::u16string_view name, CommandCreator creator) {
  const OdSmartPtr<ICmdFactory> factory = find_command_factory();
  if (factory) factory->registerCommand(name, std::move(creator));
  return !factory.isNull();
}

bool register_command(std::u16string_view name, CommandCreator creator, std::u16string_view group,
                      unsigned flags) {
  const OdSmartPtr<ICmdFactory> factory = find_command_factory();
  if (factory) factory->registerCommand(name, std::move(creator), group, flags);
  return !factory.isNull();
}

HostApplication* application() {
  const auto get = reinterpret_cast<HostApplication* (*)()>(host_function(kHostApplication));
  return get ? get() : nullptr;
}

HostDocument* active_document() {
  HostApplication* running = application();
  return running ? running->activeDocument() : nullptr;
}

void update_now() {
  if (const HostFunction update = host_function(kHostUpdate)) update();
}

}  // namespace host
