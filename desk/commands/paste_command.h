#pragma once

#include "desk/commands/desk_command.h"

/// "Paste": has the text module put the clipboard's text into the drawing.
class PasteCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
