#pragma once

struct BatchWorkerOptions;

/// Does the order of a batch on one drawing. Standard output gets one JSON object: the digests of the drawing
/// before and after (`source`, `result`), the messages of the command line, and what changed; standard error
/// the reasons when it could not be done. The new drawing is staged for the target, not put in place: that is
/// for the batch, which notes it down first. An `ExitCode`; throws what reading, running and writing throw.
int runBatchWorker(const BatchWorkerOptions& options);
