#include "desk/commands/open_command.h"

int OpenCommand::run() {
  if (!desk().mayLoseDrawing()) return setStatus(kCommandCancelled);
  const std::optional<std::filesystem::path> file = desk().askFileToOpen();
  if (!file) return setStatus(kCommandCancelled);
  desk().open(*file);
  return setStatus(kCommandDone);
}
