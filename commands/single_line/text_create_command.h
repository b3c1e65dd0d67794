#pragma once

#include "commands/base/document_command.h"

/// The commands dText and -Text: new single-line texts, typed in place or at the prompt.
class CTextCreateCmd : public CDocumentCommand {
 public:
  explicit CTextCreateCmd(bool in_place) : m_in_place(in_place) {}

 protected:
  int runIn(HostDocument& document) override;

 private:
  bool m_in_place;
};
