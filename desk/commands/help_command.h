#pragma once

#include "desk/commands/desk_command.h"

/// "Help": lists all commands, and what those of the desk do.
class HelpCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
