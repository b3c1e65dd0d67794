#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "desk/batch/batch_options.h"
#include "desk/cli/mtext_command.h"
#include "desk/cli/render_drawing.h"
#include "desk/cli/run_script.h"

/// `scribe [drawing]`: the window.
struct WindowOptions {
  std::filesystem::path drawing;  ///< empty for a new one
};

/// `scribe text`.
struct TextOptions {
  std::filesystem::path drawing;
  bool json = false;
};

/// The program was called in a way that ends it at once: `--help`, `--version`, or wrongly.
struct CalledOff {
  int exit_code = 0;
  std::string text;  ///< for standard output when the code is 0, else for standard error
};

using Arguments = std::variant<WindowOptions, RunOptions, RenderOptions, TextOptions, MTextOptions,
                               BatchOptions, BatchWorkerOptions, CalledOff>;

/// Reads the command line of the program.
Arguments readArguments(int count, const char* const* words);
