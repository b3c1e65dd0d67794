#include "host/module_loader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "host/command.h"
#include "host/command_loop.h"
#include "host/windowless/application.h"

namespace {

using testing::Contains;
using testing::HasSubstr;

std::string refusal_of(const std::filesystem::path& file) {
  try {
    host::load_module(file);
  } catch (const host::ModuleError& error) {
    return error.what();
  }
  return "loaded";
}

TEST(ModuleLoader, a_loaded_module_has_registered_its_command_which_reaches_the_application) {
  host::load_module(SAMPLE_MODULE);
  WindowlessApplication application(OdDbDatabase::createEmpty());
  HostCommandLoop loop(application, application.document());
  EXPECT_EQ(loop.run(u"sampleofmodule"), kCommandDone);
  EXPECT_THAT(application.log().lines(), Contains(u"The module has run."));
  EXPECT_EQ(application.updates(), 1);
}

TEST(ModuleLoader, a_missing_file_is_named) {
  EXPECT_THAT(refusal_of("/nowhere/libnothing.so"), HasSubstr("/nowhere/libnothing.so"));
}

TEST(ModuleLoader, a_file_that_is_no_module_is_named) {
  const auto file = std::filesystem::temp_directory_path() / "scribe_no_module.so";
  std::ofstream(file) << "This is a text.";
  EXPECT_THAT(refusal_of(file), HasSubstr(file.string()));
  std::filesystem::remove(file);
}

}  // namespace
