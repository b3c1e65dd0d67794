#pragma once

#include <optional>

#include "commands/base/document_command.h"
#include "od/db/OdDbMText.h"

class HostDocument;
class OdDbObjectId;

/// Edits an open text in place. 0 when it was accepted and changed, else a `CommandStatus`: 0 for a text
/// accepted as it was, 1 for a cancelled one. The caret begins at `caret_at`, a point of the world, or at the
/// start of the text.
int editMText(OdDbMTextPtr text, HostDocument& document, const std::optional<OdGePoint3d>& caret_at = {});

/// Opens an object and edits it. What is no multi-line text is refused at the prompt.
int editMTextById(const OdDbObjectId& id, HostDocument& document,
                  const std::optional<OdGePoint3d>& caret_at = {});

/// The command MTextEdit.
class CMTextEditCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
