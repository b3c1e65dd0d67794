#pragma once

#include <functional>

#include "desk/batch/batch_options.h"

namespace CLI {
class App;
}

/// Adds `batch` to the parser, which fills in the options; both have to outlive the parsing.
CLI::App* addBatch(CLI::App& app, BatchOptions& options);

/// Adds the hidden form in which a batch starts the process for one drawing.
CLI::App* addBatchDrawing(CLI::App& app, BatchWorkerOptions& options);
