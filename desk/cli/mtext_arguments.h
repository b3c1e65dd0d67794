#pragma once

#include "desk/cli/mtext_command.h"

namespace CLI {
class App;
}

/// Adds `mtext` with its actions to the ways to call the program; the chosen one fills in `options`, which
/// has to outlive the parser. Returns the subcommand.
CLI::App* addMText(CLI::App& program, MTextOptions& options);
