#include "desk/commands/save_as_command.h"

int SaveAsCommand::run() {
  const std::optional<std::filesystem::path> file = desk().askFileToSave(desk().file());
  if (!file) return setStatus(kCommandCancelled);
  desk().save(*file);
  return setStatus(kCommandDone);
}
