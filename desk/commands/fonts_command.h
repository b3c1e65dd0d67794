#pragma once

#include "desk/commands/desk_command.h"

/// "Fonts": lists the fonts that the drawing names and this machine lacks, with what stands in for each.
class FontsCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;
};
