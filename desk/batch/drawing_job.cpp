#include "desk/batch/drawing_job.h"

#include <algorithm>
#include <map>
#include <set>

#include "desk/batch/batch_options.h"
#include "desk/program/usage_error.h"
#include "od/base/unicode.h"

namespace {

namespace fs = std::filesystem;

/// A drawing, and its name below the folder for new ones.
struct Found {
  fs::path file;
  fs::path name;
};

bool isDrawing(const fs::directory_entry& entry) {
  return entry.is_regular_file() && odEqualNoCase(odToUtf16(entry.path().extension().string()), u".dxf");
}

/// The drawings of a folder; those in `out` came out of a batch and are left out.
std::vector<Found> drawingsIn(const fs::path& folder, const fs::path& out) {
  std::vector<Found> found;
  constexpr auto kOptions = fs::directory_options::skip_permission_denied;
  for (auto at = fs::recursive_directory_iterator(folder, kOptions); at != fs::end(at); ++at) {
    if (at->is_directory() && !out.empty() && fs::weakly_canonical(at->path()) == out)
      at.disable_recursion_pending();
    if (isDrawing(*at)) found.push_back({at->path(), at->path().lexically_relative(folder)});
  }
  std::ranges::sort(found, {}, &Found::file);
  return found;
}

/// Collects the jobs of a batch, and refuses those that would be in each other's way.
class Plan {
 public:
  explicit Plan(const BatchOptions& options)
      : m_out(options.out.empty() ? fs::path() : fs::weakly_canonical(fs::absolute(options.out))) {}

  void addNamed(const fs::path& named) {
    if (!fs::exists(named)) throw UsageError("There is no file " + named.string() + ".");
    if (!fs::is_directory(named)) {
      add({named, named.filename()});
      return;
    }
    for (const Found& found : drawingsIn(named, m_out)) add(found);
  }

  std::vector<DrawingJob> jobs() && {
    if (m_jobs.empty()) throw UsageError("There are no drawings to work on.");
    if (!m_out.empty()) refuseInputsAsTargets();
    return std::move(m_jobs);
  }

 private:
  void add(const Found& found) {
    const fs::path real = fs::canonical(found.file);
    if (!m_inputs.insert(real).second) return;
    const fs::path target = m_out.empty() ? real : m_out / found.name;
    const auto [taken, fresh] = m_targets.emplace(target, found.file);
    if (!fresh)
      throw UsageError(taken->second.string() + " and " + found.file.string() + " would both be written to " +
                       target.string() + ".");
    std::error_code unknown;
    const std::uintmax_t size = fs::file_size(real, unknown);
    m_jobs.push_back({found.file, target, unknown ? 0 : size});
  }

  void refuseInputsAsTargets() const {
    for (const DrawingJob& job : m_jobs)
      if (m_inputs.contains(fs::weakly_canonical(job.target)))
        throw UsageError(job.target.string() + " is read itself: the new drawing of " + job.file.string() +
                         " needs another folder.");
  }

  fs::path m_out;
  std::vector<DrawingJob> m_jobs;
  std::set<fs::path> m_inputs;
  std::map<fs::path, fs::path> m_targets;
};

}  // namespace

std::vector<DrawingJob> planJobs(const BatchOptions& options) {
  Plan plan(options);
  for (const fs::path& file : options.files) plan.addNamed(file);
  return std::move(plan).jobs();
}
