#include "desk/commands/help_command.h"

#include <algorithm>

#include "desk/commands/command_table.h"
#include "host/application.h"
#include "host/command_factory.h"

namespace {

constexpr std::size_t kNameWidth = 14;

std::u16string_view helpOf(const std::u16string& name) {
  const auto rows = deskCommands();
  const auto row =
      std::find_if(rows.begin(), rows.end(), [&](const DeskCommandRow& each) { return each.name == name; });
  return row == rows.end() ? std::u16string_view() : row->help;
}

}  // namespace

int HelpCommand::run() {
  for (std::u16string name : desk().application().commandFactory().names()) {
    const std::u16string_view help = helpOf(name);
    if (!help.empty()) name.resize(std::max(kNameWidth, name.size() + 1), u' ');
    prompt().message(name + std::u16string(help));
  }
  return setStatus(kCommandDone);
}
