#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace dxf {

/// The content of a file. Throws `Error` with one sentence when it cannot be read, for a folder too.
std::string load_bytes(const std::filesystem::path& path);

/// Writes `bytes` to `path` so that at every moment either the old or the new content is complete: a
/// temporary file in the same folder is filled and flushed to the disk, the old file is kept with `.bak`
/// behind its name, and the temporary file takes its place. Permissions stay; a symbolic link stays, and the
/// file it points to is written. Throws `Error` when that fails; the old file is then as it was.
void atomic_save(const std::filesystem::path& path, std::string_view bytes);

}  // namespace dxf
