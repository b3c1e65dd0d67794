#pragma once

#include <filesystem>

/// `scribe text`: prints all texts of a drawing, a line each with tabs between and line ends as \n, or as
/// JSON. An `ExitCode`; throws OdError.
int listTexts(const std::filesystem::path& drawing, bool json);
