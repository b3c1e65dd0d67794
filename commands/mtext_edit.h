#pragma once

#include "host/command.h"
#include "od/db/OdDbMText.h"

class HostDocument;
class OdDbObjectId;

/// Edits an open text in place. 0 when it was accepted and changed, else a `CommandStatus`: 0 for a text
/// accepted as it was, 1 for a cancelled one.
int editMText(OdDbMTextPtr text, HostDocument& document);

/// Opens an object and edits it. What is no multi-line text is refused at the prompt.
int editMTextById(const OdDbObjectId& id, HostDocument& document);

/// The command MTextEdit.
class CMTextEditCmd : public CCmdProcess {
 public:
  int run() override;

 private:
  int edit(HostDocument& document);
};
