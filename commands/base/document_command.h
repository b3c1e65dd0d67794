#pragma once

#include "host/command.h"

class HostDocument;

/// A command that works in the active document. Without one it does nothing; an error of the drawing library
/// ends it with a sentence at the prompt.
class CDocumentCommand : public CCmdProcess {
 public:
  int run() final;

 protected:
  /// Does the work and returns a `CommandStatus`.
  virtual int runIn(HostDocument& document) = 0;
};
