#include "host/command_factory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

OdSmartPtr<ICmdProcess> no_command() { return nullptr; }

TEST(CommandFactory, a_name_is_found_without_case_and_shown_as_registered) {
  const auto factory = host::new_command_factory();
  factory->registerCommand(u"MTextEdit", no_command, u"HOST", kCommandUsesPickFirst);
  const CommandRecord* record = factory->find(u"mtexTEDIT");
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->name, u"MTextEdit");
  EXPECT_EQ(record->group, u"HOST");
  EXPECT_EQ(record->flags, kCommandUsesPickFirst);
}

TEST(CommandFactory, the_plain_form_has_no_group_and_no_flags) {
  const auto factory = host::new_command_factory();
  factory->registerCommand(u"MTextCreate", no_command);
  EXPECT_EQ(factory->find(u"MTextCreate")->group, u"");
  EXPECT_EQ(factory->find(u"MTextCreate")->flags, kCommandPlain);
}

TEST(CommandFactory, a_name_that_nobody_registered_gives_null) {
  EXPECT_EQ(host::new_command_factory()->find(u"Nothing"), nullptr);
}

TEST(CommandFactory, names_are_completed_in_alphabetical_order_without_case) {
  const auto factory = host::new_command_factory();
  for (const char16_t* name : {u"Save", u"MTextEdit", u"MTextCreate", u"SaveAs"})
    factory->registerCommand(name, no_command);
  EXPECT_THAT(factory->names(u"mt"), ElementsAre(u"MTextCreate", u"MTextEdit"));
  EXPECT_THAT(factory->names(), ElementsAre(u"MTextCreate", u"MTextEdit", u"Save", u"SaveAs"));
  EXPECT_THAT(factory->names(u"x"), IsEmpty());
}

TEST(CommandFactory, a_name_registered_again_gets_the_new_record) {
  const auto factory = host::new_command_factory();
  factory->registerCommand(u"Save", no_command);
  factory->registerCommand(u"SAVE", no_command, u"HOST", 2);
  EXPECT_THAT(factory->names(), ElementsAre(u"SAVE"));
  EXPECT_EQ(factory->find(u"save")->group, u"HOST");
}

}  // namespace
