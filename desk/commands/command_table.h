#pragma once

#include <span>
#include <string_view>

#include "desk/document/desk.h"
#include "host/command.h"

class ICmdFactory;

/// One command of the desk.
struct DeskCommandRow {
  std::u16string_view name;
  /// What it does, in a sentence for the user.
  std::u16string_view help;
  OdSmartPtr<ICmdProcess> (*make)(Desk& desk);
};

/// The desk's own commands.
std::span<const DeskCommandRow> deskCommands();

/// Enters the desk's commands beside those of the modules. The desk has to outlive the factory's use.
void registerDeskCommands(ICmdFactory& factory, Desk& desk);
