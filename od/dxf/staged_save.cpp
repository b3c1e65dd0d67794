#include "od/dxf/staged_save.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "od/dxf/error.h"
#include "od/dxf/replaced_file.h"
#include "od/dxf/temporary_file.h"

namespace dxf {
namespace fs = std::filesystem;

fs::path staged_path(const fs::path& path) {
  const fs::path target = real_target(path);
  return target.parent_path() / ("." + target.filename().string() + ".scribe-staged");
}

void stage_save(const fs::path& path, std::string_view bytes) {
  const ReplacedFile target(path);
  TemporaryFile staged{staged_path(path)};
  // A process that was left behind may still write there; the file that it has open loses its name.
  ::unlink(staged.path.c_str());
  Descriptor file(::open(staged.path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!file.is_open()) fail_with_errno(target.path(), "the folder cannot be written to");
  target.fill(std::move(file), bytes);
  staged.kept = true;
}

void finish_save(const fs::path& path) { ReplacedFile(path).replace_by(staged_path(path)); }

void drop_save(const fs::path& path) { ::unlink(staged_path(path).c_str()); }

}  // namespace dxf
