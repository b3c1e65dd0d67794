#pragma once

#include <filesystem>
#include <string_view>

namespace dxf {

// `atomic_save` in two steps, where something has to be noted down between them, or where another process
// decides. Whatever ends the program in between, the drawing is the old one and the next `stage_save` starts
// afresh.

/// Where `stage_save` writes: a hidden file beside the one that `path` is or points to.
std::filesystem::path staged_path(const std::filesystem::path& path);

/// Writes what is to become the content of `path`, and flushes it to the disk. Throws `Error`, and leaves
/// nothing behind then.
void stage_save(const std::filesystem::path& path, std::string_view bytes);

/// Puts what was staged in the place of `path`; the old file is kept with `.bak` behind its name. Throws
/// `Error`.
void finish_save(const std::filesystem::path& path);

/// Removes what was staged, if anything was.
void drop_save(const std::filesystem::path& path);

}  // namespace dxf
