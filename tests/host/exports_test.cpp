#include "host/exports.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

/// A process that is made of names: a handle is the address of its module's exports.
class InventedModules : public host::LoadedModules {
 public:
  using Exports = std::map<std::string, void*>;

  void* module(std::string_view name) const override {
    const auto found = modules.find(std::string(name));
    return found == modules.end() ? nullptr : const_cast<Exports*>(&found->second);
  }
  void* symbol(void* module, const char* name) const override {
    const auto* exports = static_cast<const Exports*>(module);
    const auto found = exports->find(name);
    return found == exports->end() ? nullptr : found->second;
  }

  std::map<std::string, Exports> modules;
};

const char16_t* name_of_the_core() { return u"core"; }

int core_marker = 0;
void* instance_of_the_core() { return &core_marker; }

template <typename Function>
void* address(Function* function) {
  return reinterpret_cast<void*>(function);
}

TEST(Exports, the_program_names_the_main_module) {
  InventedModules process;
  process.modules[""]["GetMainDllNameW"] = address(name_of_the_core);
  process.modules["core"];
  process.modules["shellview"];
  EXPECT_EQ(host::find_main_module(process), process.module("core"));
}

TEST(Exports, without_a_name_the_module_shellview_is_the_main_one) {
  InventedModules process;
  process.modules[""];
  process.modules["shellview"];
  process.modules["shellapp"]["GetMainDllInstanceEx"] = address(instance_of_the_core);
  EXPECT_EQ(host::find_main_module(process), process.module("shellview"));
}

TEST(Exports, without_shellview_the_module_shellapp_gives_the_main_one) {
  InventedModules process;
  process.modules[""];
  process.modules["shellapp"]["GetMainDllInstanceEx"] = address(instance_of_the_core);
  EXPECT_EQ(host::find_main_module(process), &core_marker);
}

TEST(Exports, when_nothing_leads_to_a_main_module_there_is_no_factory_and_no_word) {
  InventedModules process;
  process.modules[""];
  EXPECT_EQ(host::find_main_module(process), nullptr);
  EXPECT_FALSE(host::find_command_factory(process));
}

TEST(Exports, a_main_module_without_a_factory_gives_none) {
  InventedModules process;
  process.modules[""];
  process.modules["shellview"];
  EXPECT_FALSE(host::find_command_factory(process));
}

TEST(Exports, this_program_serves_the_one_factory_of_the_process) {
  EXPECT_EQ(host::find_command_factory().get(), &host::command_factory());
}

TEST(Exports, without_a_running_application_there_is_none_and_an_update_does_nothing) {
  EXPECT_EQ(host::application(), nullptr);
  host::update_now();
}

}  // namespace
