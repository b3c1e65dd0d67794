#include "commands/edit/text_edit_command.h"
#include "commands/find/text_find_command.h"
#include "commands/find/text_replace_command.h"
#include "commands/justify/justify_text_command.h"
#include "commands/justify/tjust_command.h"
#include "commands/letter_case/tcase_command.h"
#include "commands/multi_line/mtext_create.h"
#include "commands/multi_line/mtext_edit.h"
#include "commands/multi_line/text_to_mtext_command.h"
#include "commands/single_line/text_create_command.h"
#include "commands/single_line/text_fit_command.h"
#include "host/exports.h"
#include "ui/resources/menus.h"
#include "ui/resources/strings.h"

// Runs when the module is loaded: the commands enter the factory of the program that loads it.

namespace {

template <class Command>
OdSmartPtr<ICmdProcess> make() {
  return {new Command, kOdRxObjAttach};
}

OdSmartPtr<ICmdProcess> make_text_in_place() {
  return {new CTextCreateCmd(/*in_place=*/true), kOdRxObjAttach};
}

OdSmartPtr<ICmdProcess> make_typed_text() { return {new CTextCreateCmd(/*in_place=*/false), kOdRxObjAttach}; }

[[maybe_unused]] const bool kStrings = (resources::register_strings(), true);
[[maybe_unused]] const bool kMenus = (resources::register_menus(), true);
[[maybe_unused]] const bool kMTextCreate = host::register_command(u"MTextCreate", make<CMTCreateCmd>);
[[maybe_unused]] const bool kMTextEdit =
    host::register_command(u"MTextEdit", make<CMTextEditCmd>, u"HOST", kCommandUsesPickFirst);
[[maybe_unused]] const bool kDText = host::register_command(u"dText", make_text_in_place);
[[maybe_unused]] const bool kTypedText = host::register_command(u"-Text", make_typed_text);
[[maybe_unused]] const bool kDdEdit =
    host::register_command(u"ddEdit", make<CTextEditCmd>, u"HOST", kCommandUsesPickFirst);
[[maybe_unused]] const bool kTextEdit =
    host::register_command(u"TextEdit", make<COneTextEditCmd>, u"HOST", kCommandUsesPickFirst);
[[maybe_unused]] const bool kJustifyText = host::register_command(u"justifytext", make<CJustifyTextCmd>);
[[maybe_unused]] const bool kTextFit = host::register_command(u"TextFit", make<CTextFitCmd>);
[[maybe_unused]] const bool kText2MText = host::register_command(u"Text2MText", make<CText2MTextCmd>);
[[maybe_unused]] const bool kTextReplace = host::register_command(u"TextReplace", make<CTextReplaceCmd>);
[[maybe_unused]] const bool kTCase = host::register_command(u"TCase", make<CTCase>);
[[maybe_unused]] const bool kTextFind =
    host::register_command(u"TextFind", make<CTextFindCmd>, u"HOST", kCommandUsesPickFirst);
[[maybe_unused]] const bool kTJust = host::register_command(u"TJust", make<CJust>);

}  // namespace
