#include "desk/commands/save_command.h"

int SaveCommand::run() {
  std::optional<std::filesystem::path> file = desk().file();
  if (file->empty()) file = desk().askFileToSave({});
  if (!file) return setStatus(kCommandCancelled);
  desk().save(*file);
  return setStatus(kCommandDone);
}
