#pragma once

#include <optional>

#include "commands/base/document_command.h"
#include "od/db/OdDbMText.h"
#include "od/field/OdDbField.h"
#include "od/ge/OdGePoint2d.h"

class HostDocument;

/// What a caller of `newMText` asks for.
struct new_mtext_request {
  /// Width of the text along its plane: only the first corner is asked for then.
  std::optional<double> width = {};
  /// Codes that the text begins with.
  std::optional<OdString> contents = {};
};

/// What came of it.
struct new_mtext_outcome {
  OdDbMTextPtr text{};      ///< not in the database; null without a text
  OdDbFieldPtr field{};     ///< of the text, to be set once it is in the database; null without fields
  OdGePoint3d end_point{};  ///< where the user pressed outside the text, else the opposite corner
  int status = kCommandDone;
};

/// Asks for the box of a new text and edits it in place. False when there is no text in the end.
bool newMText(HostDocument& document, const new_mtext_request& request, new_mtext_outcome& outcome);

/// The command MTextCreate.
class CMTCreateCmd : public CDocumentCommand {
 protected:
  int runIn(HostDocument& document) override;
};
