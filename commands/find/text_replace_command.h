#pragma once

#include "commands/base/document_command.h"

/// The command TextReplace: replaces all that is found in what the selected texts show, without stopping at
/// any of it. It asks for everything first, so that a script can answer it.
class CTextReplaceCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
