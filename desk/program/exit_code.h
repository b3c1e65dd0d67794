#pragma once

/// What the program ends with.
enum ExitCode : int {
  kExitDone = 0,
  kExitRefused = 1,  ///< a command refused, a prompt or a question stayed unanswered, a script has a bad line
  kExitUsage = 2,    ///< the program was called wrongly
  kExitFileError = 3,  ///< a file could not be read or written
};
