#pragma once

#include <string>
#include <string_view>

#include "host/command_factory.h"

class HostApplication;
class HostDocument;

/// The road from a module to the application that loaded it, over four exports of the main module:
/// "GetMainDllNameW", "GetMainDllInstanceEx", "new_ICmdFactory" and "get_host_funcptr".
namespace host {

/// A function of the application whose real type its number tells.
using HostFunction = void (*)();
/// Numbers for "get_host_funcptr".
enum HostFunctionNumber : int {
  kHostApplication = 2,  ///< HostApplication* (): the running application, null if none runs
  kHostUpdate = 3,       ///< void (): paint now
};

/// Types of the exports.
using GetMainDllNameFunction = const char16_t* (*)();  ///< empty: the program itself
using GetMainDllInstanceFunction = void* (*)();        ///< a handle as dlopen gives it
using NewCommandFactoryFunction = ICmdFactory* (*)();  ///< with a reference for the caller
using GetHostFunctionFunction = HostFunction (*)(int number);

/// The process as the search for the main module sees it; tests put an invented one in its place.
class LoadedModules {
 public:
  virtual ~LoadedModules() = default;
  /// Handle of a module that is already loaded: "" is the program itself. Null if there is none such.
  virtual void* module(std::string_view name) const = 0;
  /// Address of an export of a module; null if it has none such.
  virtual void* symbol(void* module, const char* name) const = 0;
};

/// The modules of this process.
const LoadedModules& loaded_modules();

/// Finds the main module: by the program's "GetMainDllNameW"; without that the module `shellview`; without
/// that the one which `shellapp` gives through "GetMainDllInstanceEx". Null, silently, when nothing leads to
/// one.
void* find_main_module(const LoadedModules& modules = loaded_modules());

/// The factory of the main module; null, silently, when it cannot be found.
OdSmartPtr<ICmdFactory> find_command_factory(const LoadedModules& modules = loaded_modules());

/// Registers a command with the main module's factory; without one nothing happens. Returns whether it was
/// registered, so that a static initialiser can take the value.
bool register_command(std::u16string_view name, CommandCreator creator);
bool register_command(std::u16string_view name, CommandCreator creator, std::u16string_view group,
                      unsigned flags);

/// The running application, by way of "get_host_funcptr" each time; null without one.
HostApplication* application();
/// The document that commands work on; null without an application or a document.
HostDocument* active_document();
/// Asks the application to paint now; nothing happens without one.
void update_now();

}  // namespace host
