#pragma once

struct BatchOptions;

/// `scribe batch`: does an order on many drawings, each in a process of its own, and several at a time. Shows
/// the progress on standard error; a drawing that fails is named there, stays as it was, and does not stop
/// the others. The first Ctrl+C lets the drawings end that are worked on, the second one does not. An
/// `ExitCode`; throws UsageError, ScriptError, std::invalid_argument and FileError.
int runBatch(const BatchOptions& options);
