#include "od/dxf/atomic_save.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "od/dxf/error.h"
#include "od/dxf/replaced_file.h"
#include "od/dxf/temporary_file.h"

namespace dxf {

namespace fs = std::filesystem;

std::string load_bytes(const fs::path& path) {
  const Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!descriptor.is_open() || ::fstat(descriptor.number(), &status) != 0)
    fail_with_errno(path, "the file cannot be opened");
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
    if (count < 0) fail_with_errno(path, "the file cannot be read");
    if (count == 0) return bytes;
    bytes.append(block, static_cast<std::size_t>(count));
  }
}

void atomic_save(const fs::path& path, std::string_view bytes) {
  const ReplacedFile target(path);
  TemporaryFile temporary;
  std::string name = target.beside(".scribe-save-XXXXXX").string();
  Descriptor file(::mkstemp(name.data()));
  if (!file.is_open()) fail_with_errno(target.path(), "the folder cannot be written to");
  temporary.path = name;
  target.fill(std::move(file), bytes);
  target.replace_by(temporary.path);
  temporary.kept = true;
}

}  // namespace dxf
