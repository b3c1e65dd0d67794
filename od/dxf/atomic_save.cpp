#include "od/dxf/atomic_save.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "od/dxf/error.h"

namespace dxf {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& path, const std::string& what) {
  throw Error(path.string(), what + " (" + std::strerror(errno) + ")");
}

/// An open file that is closed when it goes out of scope.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  bool is_open() const { return number_ >= 0; }
  int number() const { return number_; }
  /// False where closing reports that the bytes did not arrive.
  bool close() {
    const int closing = number_;
    number_ = -1;
    return ::close(closing) == 0;
  }

 private:
  int number_;
};

/// Removes a temporary file unless it was kept.
struct Temporary {
  fs::path path;
  bool kept = false;
  ~Temporary() {
    if (!kept) ::unlink(path.c_str());
  }
};

// The file that a chain of symbolic links ends at, which need not exist.
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

fs::path folder_of(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

bool write_all(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

mode_t mode_for_new_files() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

// A new file of its own name beside the target. `old` is what is known of the file it will replace, or null.
Descriptor create_beside(const fs::path& target, const struct stat* old, Temporary& temporary) {
  std::string name = (folder_of(target) / (".scribe-save-XXXXXX")).string();
  Descriptor descriptor(::mkstemp(name.data()));
  if (!descriptor.is_open()) fail(target, "the folder cannot be written to");
  temporary.path = name;
  // Only root can give a file away; without that the drawing belongs to whoever saved it.
  if (old && ::fchown(descriptor.number(), old->st_uid, old->st_gid) != 0) errno = 0;
  const mode_t mode = old ? old->st_mode & 07777 : mode_for_new_files();
  if (::fchmod(descriptor.number(), mode) != 0) fail(target, "the permissions cannot be set");
  return descriptor;
}

void fill(Descriptor& descriptor, std::string_view bytes, const fs::path& target) {
  if (!write_all(descriptor.number(), bytes) || ::fsync(descriptor.number()) != 0 || !descriptor.close())
    fail(target, "the drawing cannot be written");
}

// The target keeps its name until the rename, so that there is no moment without a drawing.
void keep_backup(const fs::path& target) {
  const fs::path backup = target.string() + ".bak";
  Temporary link{folder_of(target) / (".scribe-backup-" + std::to_string(::getpid()))};
  ::unlink(link.path.c_str());
  if (::link(target.c_str(), link.path.c_str()) != 0) {
    std::error_code error;
    fs::copy_file(target, link.path, fs::copy_options::overwrite_existing, error);
    if (error) throw Error(target.string(), "the backup cannot be made (" + error.message() + ")");
  }
  if (::rename(link.path.c_str(), backup.c_str()) != 0) fail(target, "the backup cannot be made");
}

void flush_folder(const fs::path& target) {
  const Descriptor folder(::open(folder_of(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Some file systems cannot flush a folder; the drawing itself is on the disk by now.
  if (folder.is_open()) ::fsync(folder.number());
}

}  // namespace

std::string load_bytes(const fs::path& path) {
  const Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!descriptor.is_open() || ::fstat(descriptor.number(), &status) != 0)
    fail(path, "the file cannot be opened");
  if (S_ISDIR(status.st_mode)) throw Error(path.string(), "this is a folder, not a drawing");
  // Some devices never end.
  if (S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode))
    throw Error(path.string(), "this is a device, not a drawing");
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(status.st_size));
  char block[1 << 16];
  for (;;) {
    const ssize_t count = ::read(descriptor.number(), block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(path, "the file cannot be read");
    if (count == 0) return bytes;
    bytes.append(block, static_cast<std::size_t>(count));
  }
}

void atomic_save(const fs::path& path, std::string_view bytes) {
  const fs::path target = real_target(path);
  struct stat status {};
  const bool exists = ::stat(target.c_str(), &status) == 0;
  if (exists && !S_ISREG(status.st_mode))
    throw Error(target.string(), "this is no file that can be written to");
  if (exists && ::access(target.c_str(), W_OK) != 0) fail(target, "the file cannot be written");
  Temporary temporary;
  Descriptor descriptor = create_beside(target, exists ? &status : nullptr, temporary);
  fill(descriptor, bytes, target);
  if (exists) keep_backup(target);
  if (::rename(temporary.path.c_str(), target.c_str()) != 0) fail(target, "the drawing cannot be replaced");
  temporary.kept = true;
  flush_folder(target);
}

}  // namespace dxf
