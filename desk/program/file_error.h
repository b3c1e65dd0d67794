#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

/// A file other than a drawing that cannot be read or written. `what()` is one sentence that names it.
class FileError : public std::runtime_error {
 public:
  FileError(const std::filesystem::path& file, const std::string& reason)
      : std::runtime_error(file.string() + ": " + reason) {}
};
