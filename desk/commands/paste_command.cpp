#include "desk/commands/paste_command.h"

#include "host/exports.h"

namespace {

using PasteTextFunction = bool (*)(bool check_only);

/// What the text module offers for it; null where the module is not loaded.
PasteTextFunction pasteText() {
  const host::LoadedModules& modules = host::loaded_modules();
  void* module = modules.module("scribe");
  return module ? reinterpret_cast<PasteTextFunction>(modules.symbol(module, "PasteText")) : nullptr;
}

}  // namespace

int PasteCommand::run() {
  const PasteTextFunction paste = pasteText();
  if (!paste) {
    prompt().refuse(u"The text module is not loaded.");
  } else if (!paste(/*check_only=*/false)) {
    prompt().refuse(u"There is no text on the clipboard.");
  }
  return setStatus(kCommandDone);
}
