#pragma once

#include "commands/base/document_command.h"

/// The command TextFind: looks through the texts of the current space, one match after the other, and
/// replaces what the user wants replaced.
class CTextFindCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
