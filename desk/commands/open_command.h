#pragma once

#include "desk/commands/desk_command.h"

/// "Open": puts another drawing on the desk, after asking about changes to the present one.
class OpenCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
