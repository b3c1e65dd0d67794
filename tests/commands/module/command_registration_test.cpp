#include <gtest/gtest.h>

#include "host/command_factory.h"
#include "host/module_loader.h"
#include "host/translate.h"

TEST(Registration, loading_the_module_registers_its_commands_and_strings) {
  EXPECT_EQ(host::command_factory().find(u"MTextEdit"), nullptr);
  host::load_module(SCRIBE_MODULE);
  const CommandRecord* create = host::command_factory().find(u"mtextcreate");
  ASSERT_NE(create, nullptr);
  EXPECT_EQ(create->group, u"");
  const CommandRecord* edit = host::command_factory().find(u"MTextEdit");
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->group, u"HOST");
  EXPECT_EQ(edit->flags, 2U);
  EXPECT_EQ(host::resource_string(1031), u"MText");
  for (const char16_t* name : {u"dText", u"-Text", u"justifytext", u"TextFit", u"TextEdit", u"Text2MText",
                               u"TextReplace", u"TCase", u"TextFind", u"TJust"})
    EXPECT_NE(host::command_factory().find(name), nullptr);
  ASSERT_NE(host::command_factory().find(u"ddEdit"), nullptr);
  EXPECT_EQ(host::command_factory().find(u"ddEdit")->group, u"HOST");
  EXPECT_EQ(host::command_factory().find(u"ddEdit")->flags, 2U);
}
