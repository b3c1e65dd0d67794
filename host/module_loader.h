#pragma once

#include <filesystem>
#include <stdexcept>

namespace host {

/// A module that cannot be loaded. The text names the file and the reason in one sentence.
class ModuleError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Loads a module for as long as the process lasts; its static initialisers register what it brings.
/// Throws `ModuleError`.
void load_module(const std::filesystem::path& file);

}  // namespace host
