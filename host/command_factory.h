#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/command.h"

/// Makes the object for one run of a command.
using CommandCreator = std::function<OdSmartPtr<ICmdProcess>()>;

/// What a command does besides running; may be joined.
enum CommandFlags : unsigned {
  kCommandPlain = 0,
  /// The command takes entities that were selected before it was typed.
  kCommandUsesPickFirst = 2,
};

/// One registered command.
struct CommandRecord {
  std::u16string name;  ///< as it is to be shown; looked up without case
  CommandCreator creator;
  std::u16string group;  ///< empty for the plain form
  unsigned flags = kCommandPlain;
};

/// The application's table of commands by name.
class ICmdFactory : public IKrUnknown {
 public:
  using Parent = IKrUnknown;
  static constexpr std::string_view kInterfaceName = "ICmdFactory";

  /// Enters a command. A name that is there already gets the new record.
  virtual void registerCommand(std::u16string_view name, CommandCreator creator) = 0;
  virtual void registerCommand(std::u16string_view name, CommandCreator creator, std::u16string_view group,
                               unsigned flags) = 0;
  /// The record of a name, without case; null if there is none. Valid until the next registration.
  virtual const CommandRecord* find(std::u16string_view name) const = 0;
  /// All names in alphabetical order, for completion; with `prefix`, those that begin with it, without case.
  virtual std::vector<std::u16string> names(std::u16string_view prefix = {}) const = 0;
};

namespace host {

/// The one factory of this process. It is there before `main`, since modules register while they are loaded.
ICmdFactory& command_factory();

/// A factory of its own, for tests.
OdSmartPtr<ICmdFactory> new_command_factory();

}  // namespace host
