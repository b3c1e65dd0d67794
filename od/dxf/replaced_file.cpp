#include "od/dxf/replaced_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "od/dxf/error.h"
#include "od/dxf/temporary_file.h"

namespace dxf {
namespace {

namespace fs = std::filesystem;

fs::path folder_of(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

mode_t mode_for_new_files() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

}  // namespace

fs::path real_target(const fs::path& path) {
  constexpr int kMostLinks = 40;
  fs::path target = path;
  std::error_code ignored;
  for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(target, ignored)); ++i) {
    const fs::path next = fs::read_symlink(target, ignored);
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target;
}

void fail_with_errno(const fs::path& path, const std::string& what) {
  throw Error(path.string(), what + " (" + std::strerror(errno) + ")");
}

ReplacedFile::ReplacedFile(const fs::path& path) : path_(real_target(path)) {
  struct stat status {};
  if (::stat(path_.c_str(), &status) != 0) return;
  if (!S_ISREG(status.st_mode)) throw Error(path_.string(), "this is no file that can be written to");
  if (::access(path_.c_str(), W_OK) != 0) fail_with_errno(path_, "the file cannot be written");
  old_ = status;
}

fs::path ReplacedFile::beside(const std::string& name) const { return folder_of(path_) / name; }

void ReplacedFile::fill(Descriptor file, std::string_view bytes) const {
  // Only root can give a file away; without that the drawing belongs to whoever saved it.
  if (old_ && ::fchown(file.number(), old_->st_uid, old_->st_gid) != 0) errno = 0;
  const mode_t mode = old_ ? old_->st_mode & 07777 : mode_for_new_files();
  if (::fchmod(file.number(), mode) != 0) fail_with_errno(path_, "the permissions cannot be set");
  if (!file.write(bytes) || ::fsync(file.number()) != 0 || !file.close())
    fail_with_errno(path_, "the drawing cannot be written");
}

void ReplacedFile::replace_by(const fs::path& filled) const {
  if (old_) keep_backup();
  if (::rename(filled.c_str(), path_.c_str()) != 0) fail_with_errno(path_, "the drawing cannot be replaced");
  flush_folder();
}

// The target keeps its name until the rename, so that there is no moment without a drawing.
void ReplacedFile::keep_backup() const {
  const fs::path backup = path_.string() + ".bak";
  TemporaryFile link{beside(".scribe-backup-" + std::to_string(::getpid()))};
  ::unlink(link.path.c_str());
  if (::link(path_.c_str(), link.path.c_str()) != 0) {
    std::error_code error;
    fs::copy_file(path_, link.path, fs::copy_options::overwrite_existing, error);
    if (error) throw Error(path_.string(), "the backup cannot be made (" + error.message() + ")");
  }
  if (::rename(link.path.c_str(), backup.c_str()) != 0) fail_with_errno(path_, "the backup cannot be made");
}

void ReplacedFile::flush_folder() const {
  const Descriptor folder(::open(folder_of(path_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Some file systems cannot flush a folder; the drawing itself is on the disk by now.
  if (folder.is_open()) ::fsync(folder.number());
}

}  // namespace dxf
