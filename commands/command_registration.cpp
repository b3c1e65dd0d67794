#include "commands/mtext_create.h"
#include "commands/mtext_edit.h"
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

}  // namespace
