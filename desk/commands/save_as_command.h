#pragma once

#include "desk/commands/desk_command.h"

/// "SaveAs": writes the drawing under another name, which it bears from then on.
class SaveAsCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
