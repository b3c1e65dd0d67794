#pragma once

#include "desk/commands/desk_command.h"

/// "Zoom": shows the whole drawing ("Extents") or a part of it, told by two corners ("Window", or at once).
class ZoomCommand : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override;

 private:
  int showExtents();
  int showWindow();
  int showWindowFrom(const OdGePoint3d& first);
};
