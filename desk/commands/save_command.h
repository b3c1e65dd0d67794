#pragma once

#include "desk/commands/desk_command.h"

/// "Save": writes the drawing under its name; a drawing without a name asks for one.
class SaveCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
