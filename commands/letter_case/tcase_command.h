#pragma once

#include "commands/base/document_command.h"

/// The command TCase: changes the case of the letters of the selected texts. The mode that was chosen last is
/// offered first, for as long as the program runs.
class CTCase : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
