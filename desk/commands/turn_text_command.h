#pragma once

#include "desk/commands/desk_command.h"

/// "TurnText": chooses whether a text that cannot be read as it lies is turned to the screen while it is
/// edited, or the view is turned to the text.
class TurnTextCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
