#include "commands/edit/attribute_dialog.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "commands/edit/text_edit_command.h"
#include "od/db/OdDbAttributeDefinition.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "tests/commands/command_run.h"

namespace {

/// Loads the library as an application that has it would, and tells whether it was shown the object.
bool is_shown(const OdDbObjectId& id) {
  void* library = dlopen(CMDEXTRAS_LIBRARY, RTLD_NOW);
  if (!library) return false;
  show_attribute_dialog(id);
  const auto* shown = static_cast<const OdDbObjectId*>(dlsym(library, "shown_definition"));
  return shown && *shown == id;
}

/// Runs `ddEdit` on a definition where the library is, and tells whether the library was shown it.
bool is_shown_by_the_command() {
  command_run run;
  auto definition = odNew<OdDbAttributeDefinition>();
  definition->setDatabaseDefaults(run.database.get());
  definition->setTag(u"TAG");
  definition->setHeight(5);
  definition->setPosition({200, 200, 0});
  const OdDbObjectId id =
      odCast<OdDbBlockTableRecord>(run.database->getModelSpaceId().openObject(OdDb::kForWrite))
          ->appendOdDbEntity(definition.get());
  definition.release();
  void* library = dlopen(CMDEXTRAS_LIBRARY, RTLD_NOW);
  run.application.input().click({202, 202, 0});
  run.application.input().line(u"");
  run.run<CTextEditCmd>();
  const auto* shown =
      library ? static_cast<const OdDbObjectId*>(dlsym(library, "shown_definition")) : nullptr;
  return shown && *shown == id;
}

}  // namespace

TEST(AttributeDialog, is_shown_for_a_definition_that_is_picked) {
  EXPECT_EXIT(std::exit(is_shown_by_the_command() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(AttributeDialog, is_that_of_the_optional_library) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  // In a process of its own: a library that was loaded once stays.
  EXPECT_EXIT(std::exit(is_shown(database->getModelSpaceId()) ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(AttributeDialog, is_missed_by_nobody_without_the_library) {
  show_attribute_dialog(OdDbObjectId());
  EXPECT_EQ(dlopen("libcmdextras.so", RTLD_NOW | RTLD_NOLOAD), nullptr);
}
