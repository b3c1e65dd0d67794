#include "sample_drawings.h"

#include <algorithm>
#include <iostream>

namespace fs = std::filesystem;

namespace {

void add_drawings(const fs::path& folder, std::vector<fs::path>& found) {
  std::error_code absent;
  for (const auto& entry : fs::directory_iterator(folder, absent)) {
    if (entry.path().extension() == ".dxf") found.push_back(entry.path());
  }
}

/// Once, however many tests ask.
void tell_of_absence() {
  static bool told = false;
  if (!told) std::cout << "The drawings of ../shared/data are absent; going on without them.\n";
  told = true;
}

}  // namespace

std::vector<fs::path> sample_drawings() {
  std::vector<fs::path> found;
  const fs::path source(SCRIBE_SOURCE_DIR);
  add_drawings(source.parent_path() / "shared" / "data", found);
  if (found.empty()) tell_of_absence();
  add_drawings(source / "samples", found);
  std::ranges::sort(found);
  return found;
}
