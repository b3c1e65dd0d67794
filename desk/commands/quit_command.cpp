#include "desk/commands/quit_command.h"

int QuitCommand::run() {
  if (!desk().mayLoseDrawing()) return setStatus(kCommandCancelled);
  desk().quit();
  return setStatus(kCommandDone);
}
