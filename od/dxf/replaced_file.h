#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "od/dxf/descriptor.h"

namespace dxf {

/// Throws `Error` with `what` and the reason that the system tells.
[[noreturn]] void fail_with_errno(const std::filesystem::path& path, const std::string& what);

/// The file that a chain of symbolic links ends at, which need not exist.
std::filesystem::path real_target(const std::filesystem::path& path);

/// A file whose place a new one takes, so that at every moment the old or the new one is complete. It need
/// not exist before.
class ReplacedFile {
 public:
  /// The file that `path` is, or that it points to as a symbolic link. Throws `Error` for what can't be
  /// written.
  explicit ReplacedFile(const std::filesystem::path& path);

  const std::filesystem::path& path() const { return path_; }
  /// A file of another name in its folder.
  std::filesystem::path beside(const std::string& name) const;
  /// Writes the content of a new file and flushes it to the disk. It gets owner and permissions of the file
  /// that it is to replace. Throws `Error`.
  void fill(Descriptor file, std::string_view bytes) const;
  /// Puts a filled file in the place; the old one is kept with `.bak` behind its name. Throws `Error`.
  void replace_by(const std::filesystem::path& filled) const;

 private:
  void keep_backup() const;
  void flush_folder() const;

  std::filesystem::path path_;
  std::optional<struct stat> old_;
};

}  // namespace dxf
