#include "commands/base/document_command.h"

#include "host/document.h"
#include "host/exports.h"
#include "host/prompt.h"
#include "od/base/OdError.h"
#include "od/base/unicode.h"

int CDocumentCommand::run() {
  setStatus(kCommandRunning);
  HostDocument* document = host::active_document();
  if (!document) return setStatus(kCommandDone);
  try {
    return setStatus(runIn(*document));
  } catch (const OdError& error) {
    document->prompt().refuse(odToUtf16(error.what()));
    return setStatus(kCommandDone);
  }
}
