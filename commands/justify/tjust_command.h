#pragma once

#include "commands/base/document_command.h"

/// The command TJust: gives the selected texts another justification and leaves them where they stand.
class CJust : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
