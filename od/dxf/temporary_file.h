#pragma once

#include <unistd.h>

#include <filesystem>

namespace dxf {

/// Removes a temporary file unless it was kept.
struct TemporaryFile {
  std::filesystem::path path;
  bool kept = false;
  ~TemporaryFile() {
    if (!kept) ::unlink(path.c_str());
  }
};

}  // namespace dxf
