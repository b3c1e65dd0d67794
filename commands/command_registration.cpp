#include "commands/mtext_create.h"
#include "commands/mtext_edit.h"
#include "commands/tcase_command.h"
#include "commands/text_to_mtext_command.h"
#include "commands/tjust_command.h"
#include "host/exports.h"
#include "ui/resources/menus.h"
#include "ui/resources/strings.h"

// Runs when the module is loaded: the commands enter the factory of the program that loads it.

namespace {

template <class Command>
OdSmartPtr<ICmdProcess> make() {
  return {new Command, kOdRxObjAttach};
}

[[maybe_unused]] const bool kStrings = (resources::register_strings(), true);
[[maybe_unused]] const bool kMenus = (resources::register_menus(), true);
[[maybe_unused]] const bool kMTextCreate = host::register_command(u"MTextCreate", make<CMTCreateCmd>);
[[maybe_unused]] const bool kMTextEdit =
    host::register_command(u"MTextEdit", make<CMTextEditCmd>, u"HOST", kCommandUsesPickFirst);
[[maybe_unused]] const bool kText2MText = host::register_command(u"Text2MText", make<CText2MTextCmd>);
[[maybe_unused]] const bool kTCase = host::register_command(u"TCase", make<CTCase>);
[[maybe_unused]] const bool kTJust = host::register_command(u"TJust", make<CJust>);

}  // namespace
