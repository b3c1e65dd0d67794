#pragma once

#include <filesystem>

/// `scribe run`.
struct RunOptions {
  std::filesystem::path drawing;
  std::filesystem::path script;  ///< "-" reads standard input
  std::filesystem::path output;  ///< empty: the drawing is saved by commands alone
};

/// Runs a script on a drawing, without a window. Messages of the command line go to standard output, what
/// went wrong to standard error. `output` is written when nothing went wrong. An `ExitCode`; throws OdError,
/// ScriptError and FileError.
int runScript(const RunOptions& options);
