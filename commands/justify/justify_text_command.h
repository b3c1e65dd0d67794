#pragma once

#include "commands/base/document_command.h"

/// The command justifytext: gives selected texts one of the fifteen justifications and leaves them where they
/// are.
class CJustifyTextCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
