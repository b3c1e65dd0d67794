#pragma once

#include "commands/base/document_command.h"

/// The command ddEdit: edits one picked text after the other, each in the manner of its kind.
class CTextEditCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};

/// The command TextEdit: the same for one text. It is what a double click on a text runs.
class COneTextEditCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
