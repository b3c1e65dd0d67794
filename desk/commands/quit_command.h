#pragma once

#include "desk/commands/desk_command.h"

/// "Quit": ends the desk, after asking about changes that would be lost.
class QuitCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
