#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "desk/script/script_step.h"

/// A line of a script that cannot be understood. `what()` is one sentence with file, line and reason.
class ScriptError : public std::runtime_error {
 public:
  ScriptError(const std::string& file, int line, const std::string& reason)
      : std::runtime_error(file + ", line " + std::to_string(line) + ": " + reason) {}
};

/// Reads a whole script, a step a line: `; remark`, `@click 10,20`, `@key Ctrl+Z`, or a plain line that is
/// typed at the prompt. `text` is UTF-8 with LF or CR LF; `file` is the name for messages. The script is read
/// to its end before anything of it runs, so that a slip in its last line cannot leave half of it done.
/// Throws ScriptError.
Script readScript(std::string_view text, const std::string& file);
