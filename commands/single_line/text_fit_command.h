#pragma once

#include "commands/base/document_command.h"

/// The command TextFit: turns a single-line text and stretches or shrinks it to end where the user shows.
class CTextFitCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
