#pragma once

#include <filesystem>

/// `scribe [drawing]`: opens the window, on an empty drawing if `drawing` is empty, and works until the user
/// quits. A QApplication has to be there. `module_error`, unless empty, is shown at the command line. An
/// `ExitCode`; throws OdError when the drawing cannot be read.
int runWindow(const std::filesystem::path& drawing, const std::string& module_error);
