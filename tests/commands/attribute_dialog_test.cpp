#include "commands/attribute_dialog.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "od/db/OdDbDatabase.h"

namespace {

/// Loads the library as an application that has it would, and tells whether it was shown the object.
bool is_shown(const OdDbObjectId& id) {
  void* library = dlopen(CMDEXTRAS_LIBRARY, RTLD_NOW);
  if (!library) return false;
  show_attribute_dialog(id);
  const auto* shown = static_cast<const OdDbObjectId*>(dlsym(library, "shown_definition"));
  return shown && *shown == id;
}

}  // namespace

TEST(AttributeDialog, is_that_of_the_optional_library) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  // In a process of its own: a library that was loaded once stays.
  EXPECT_EXIT(std::exit(is_shown(database->getModelSpaceId()) ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(AttributeDialog, is_missed_by_nobody_without_the_library) {
  show_attribute_dialog(OdDbObjectId());
  EXPECT_EQ(dlopen("libcmdextras.so", RTLD_NOW | RTLD_NOLOAD), nullptr);
}
