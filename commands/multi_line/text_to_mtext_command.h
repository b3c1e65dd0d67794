#pragma once

#include "commands/base/document_command.h"

/// The command Text2MText: one multi-line text takes the place of the selected single-line texts.
class CText2MTextCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
